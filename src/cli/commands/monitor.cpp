// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/MonitorView.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "json/Writer.h"
#include "language/texts.h"
#include "monitor/SystemSampler.h"
#include "monitor/texts.h"
#include "monitor/verdicts.h"

#include <CLI/Validators.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <memory>
#include <string>

namespace quillmark::cli {

using namespace Qt::StringLiterals;
using monitor::MonitorSample;

namespace {

class Text
{
    QUILLMARK_TEXTS(TerminalMonitor)
};

constexpr std::chrono::seconds interval(1);

struct MonitorOptions
{
    bool json = false;
    std::int64_t samples = 0; ///< 0: until somebody ends it
};

/// Moments a second apart, however long it took to use the one before. After one that came late, or not at
/// all, they begin anew: two samples close together would tell nothing.
class Pace
{
public:
    /// Without a console no time passes.
    explicit Pace(const Console *console)
        : m_console(console)
    {
        begin();
    }

    void begin() { m_next = now() + interval; }
    Console::Time next() const { return m_next; }
    void advance()
    {
        m_next += interval;
        if (m_next < now() + interval / 2)
            m_next = now() + interval;
    }

private:
    Console::Time now() const { return m_console ? m_console->now() : Console::Time(); }

    const Console *m_console;
    Console::Time m_next;
};

std::string jsonLine(const MonitorSample &sample)
{
    json::Writer writer(json::Writer::Layout::Compact);
    writer.beginObject();
    writer.member("date", monitor::isoText(sample.date));
    writer.member("cpuUsage", sample.cpuUsage);
    writer.key("perCoreUsage");
    writer.beginArray();
    for (const double load : sample.perCoreUsage)
        writer.number(load);
    writer.endArray();
    writer.member("memoryUsed", sample.memoryUsed);
    writer.member("memoryTotal", sample.memoryTotal);
    writer.member("memoryPressure", sample.memoryPressure);
    writer.member("swapUsed", sample.swapUsed);
    writer.member("thermalState", static_cast<std::int32_t>(sample.thermalState));
    if (sample.batteryLevel)
        writer.member("batteryLevel", *sample.batteryLevel);
    if (sample.isCharging)
        writer.member("isCharging", *sample.isCharging);
    writer.member("networkInPerSecond", sample.networkInPerSecond);
    writer.member("networkOutPerSecond", sample.networkOutPerSecond);
    writer.endObject();
    return writer.take() + '\n';
}

/// "09:00:01"
QString localTime(monitor::Date date)
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date.time_since_epoch()).count();
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local = {};
    localtime_r(&time, &local);
    std::array<char, 16> text{};
    std::strftime(text.data(), text.size(), "%H:%M:%S", &local);
    return QString::fromLatin1(text.data());
}

/// The same for people, where the output is no terminal.
QString plainLine(const MonitorSample &sample, const language::Formats &formats)
{
    using namespace monitor;
    QStringList parts = {
        localTime(sample.date), Text::tr("Processor %1").arg(percentText(sample.cpuUsage)),
        Text::tr("Memory %1 of %2")
            .arg(memoryText(sample.memoryUsed, formats), memoryText(sample.memoryTotal, formats)),
        //: A verdict ("Pressure normal") and its measure.
        Text::tr("%1 %2").arg(title(pressureVerdict(sample.memoryPressure)),
                              percentText(sample.memoryPressure)),
        Text::tr("Swap used %1").arg(swapText(sample.swapUsed, formats)),
        Text::tr("In %1").arg(rateText(sample.networkInPerSecond, formats)),
        Text::tr("Out %1").arg(rateText(sample.networkOutPerSecond, formats)),
        Text::tr("Thermal state %1").arg(title(sample.thermalState))};
    if (sample.batteryLevel)
        parts += Text::tr("%1 %2").arg(batteryTitle(sample.isCharging.value_or(false)),
                                       percentText(*sample.batteryLevel));
    return parts.join(u"  "_s) + u'\n';
}

/// A line for each sample, until there are enough or nobody reads them.
void writeLines(const Session &session, const platform::Machine &machine, const MonitorOptions &options)
{
    const auto &output = session.output();
    monitor::SystemSampler sampler(machine);
    Pace pace(output.console);
    sampler.prime();
    for (std::int64_t count = 0; output.out && (options.samples == 0 || count < options.samples); ++count) {
        if (output.console)
            output.console->waitUntil(pace.next());
        pace.advance();
        const auto sample = sampler.sample();
        if (options.json)
            output.out << jsonLine(sample) << std::flush;
        else
            output.out << plainLine(sample, session.language().formats()).toStdString() << std::flush;
    }
}

/// The live view: one sample a second and a picture for each.
class LiveView
{
public:
    LiveView(const Session &session, const platform::Machine &machine)
        : m_output(session.output())
        , m_console(*session.output().console)
        , m_sampler(machine)
        , m_view(session.language().formats(),
                 QString::fromStdString(machine.system().hostName().value_or(std::string())))
        , m_screen(paletteOf(session))
        , m_pace(&m_console)
    {
        m_console.takeScreen();
    }
    ~LiveView() { m_console.giveBackScreen(); }
    LiveView(const LiveView &) = delete;
    LiveView &operator=(const LiveView &) = delete;

    void run(std::int64_t samples)
    {
        begin();
        draw();
        for (std::int64_t count = 0; m_output.out && (samples == 0 || count < samples);) {
            switch (m_console.waitUntil(m_pace.next())) {
            case Console::Event::EndAsked:
                return;
            case Console::Event::Resumed:
                m_screen.forget();
                begin();
                break;
            case Console::Event::Resized:
                m_size = m_console.size();
                break;
            case Console::Event::TimeUp:
                m_pace.advance();
                m_view.add(m_sampler.sample());
                ++count;
                break;
            }
            draw();
        }
    }

private:
    /// From here on, so that the first figures are those of a second, and not of a time without the program.
    void begin()
    {
        m_sampler.prime();
        m_pace.begin();
        m_size = m_console.size();
    }

    void draw()
    {
        m_screen.begin(m_size.columns, m_size.rows);
        m_view.draw(m_screen);
        if (const auto bytes = m_screen.update(); !bytes.empty())
            m_output.out << bytes << std::flush;
    }

    static Palette paletteOf(const Session &session)
    {
        if (!session.usesColor())
            return Palette::None;
        return session.output().console->has256Colors() ? Palette::Colors256 : Palette::Colors16;
    }

    const Output &m_output;
    Console &m_console;
    monitor::SystemSampler m_sampler;
    MonitorView m_view;
    Screen m_screen;
    Pace m_pace;
    Console::Size m_size;
};

std::expected<void, Failure> watch(const Session &session, const MonitorOptions &options)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    const auto &output = session.output();
    if (output.isTerminal && !options.json && output.console && output.console->canDraw())
        LiveView(session, **machine).run(options.samples);
    else
        writeLines(session, **machine, options);
    return {};
}

std::string isCount(const std::string &given)
{
    bool isNumber = false;
    const auto number = QString::fromStdString(given).toLongLong(&isNumber);
    return isNumber && number > 0 ? "" : "'" + given + "' is no whole number from 1";
}

} // namespace

void addMonitor(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<MonitorOptions>();
    auto *command = program.add_subcommand("monitor", "Show processor, memory, network and heat live");
    command->add_flag("--json", options->json, "Print one JSON object per sample and line");
    command->add_option("--samples", options->samples, "End after so many samples, which are a second apart")
        ->check(isCount)
        ->type_name("N");
    command->footer(helpFooter(
        {"monitor", "monitor --json --samples 60 > minute.jsonl", "monitor --machine my-machine.json"},
        "On a terminal the view is redrawn in place; q, Esc or Ctrl-C ends it. Elsewhere there is a line\n"
        "for each sample."));
    command->callback([options, &chosen] {
        chosen = [options](const Session &session) { return watch(session, *options); };
    });
}

} // namespace quillmark::cli
