// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "PictureTerminal.h"
#include "cli/CommandLine.h"
#include "cli/MonitorView.h"
#include "support/Recordings.h"

#include <QRegularExpression>
#include <QTest>

#include <deque>
#include <sstream>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;
using cli::Console;

namespace {

/// A console on which time passes at once, and these events come before each time that is waited for.
class StagedConsole final : public Console
{
public:
    Time now() const override { return m_now; }
    Event waitUntil(Time time) override
    {
        if (!events.empty()) {
            const Event event = events.front();
            events.pop_front();
            if (event == Event::Resized)
                current = {60, 12};
            if (event != Event::TimeUp)
                return event;
        }
        waits.push_back(time - m_now);
        m_now = time;
        return Event::TimeUp;
    }
    bool canDraw() const override { return current.columns > 0; }
    bool has256Colors() const override { return false; }
    Size size() const override { return current; }
    void takeScreen() override { ++taken; }
    void giveBackScreen() override { ++givenBack; }

    Size current = {80, 24};
    std::deque<Event> events;
    std::vector<std::chrono::nanoseconds> waits;
    int taken = 0;
    int givenBack = 0;

private:
    Time m_now{};
};

struct Outcome
{
    int status = -1;
    QByteArray out;
    QString err;
};

/// On the recorded Mac unless another machine is named.
Outcome monitorWith(const QString &arguments, Console *console = nullptr, bool isTerminal = false,
                    bool isGone = false)
{
    std::vector<std::string> texts = {"quillmark", "monitor"};
    for (const auto &argument : arguments.split(u' ', Qt::SkipEmptyParts))
        texts.push_back(argument.toStdString());
    std::vector<const char *> pointers;
    for (const auto &text : texts)
        pointers.push_back(text.c_str());
    std::ostringstream out;
    std::ostringstream err;
    if (isGone)
        out.setstate(std::ios::badbit);
    const cli::Output output{
        .out = out, .err = err, .isTerminal = isTerminal, .colorIsWelcome = isTerminal, .console = console};
    const int status = cli::run(static_cast<int>(pointers.size()), pointers.data(), output,
                                [] { return machineFrom(recordingText(u"macbook-pro-m3-max"_s)); });
    return {status, QByteArray::fromStdString(out.str()), QString::fromStdString(err.str())};
}

/// A second of a machine with that many cores, no two seconds alike.
monitor::MonitorSample sampleAt(int second, int cores)
{
    monitor::MonitorSample sample;
    sample.date = monitor::Date(std::chrono::seconds(1772355600 + second + (second > 50 ? 10 : 0)));
    sample.cpuUsage = second % 11 / 10.0;
    for (int core = 0; core < cores; ++core)
        sample.perCoreUsage.push_back((core * 7 + second * 3) % 101 / 100.0);
    sample.memoryTotal = std::int64_t(64) << 30;
    sample.memoryUsed = (std::int64_t(second) << 29) % sample.memoryTotal;
    sample.memoryPressure = second % 21 / 20.0;
    sample.thermalState = static_cast<monitor::ThermalState>(second % 5);
    if (second % 7 != 0) {
        sample.batteryLevel = 0.5;
        sample.isCharging = second % 2 == 0;
    }
    sample.networkInPerSecond = second % 13 * 3.1e6;
    sample.networkOutPerSecond = second * 977.0;
    return sample;
}

} // namespace

class MonitorCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jsonLines();
    void plainLines();
    void ends();
    void picture();
    void sizes_data();
    void sizes();
    void wideName();
};

void MonitorCommandTest::jsonLines()
{
    StagedConsole console;
    const auto outcome = monitorWith(u"--json --samples 3"_s, &console, true);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(console.taken, 0);
    QCOMPARE(console.waits, std::vector<std::chrono::nanoseconds>(3, std::chrono::seconds(1)));
    const auto lines = outcome.out.split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(QRegularExpression(
                u"^{\"date\":\"2025-03-02T09:00:01.000Z\",\"cpuUsage\":0.15642857142857142,\"perCoreUsage\":"
                "\\[0.22,[0-9.,]*0.3\\],\"memoryUsed\":15898542080,\"memoryTotal\":38654705664,"
                "\"memoryPressure\":"
                "[0-9.]+,\"swapUsed\":1179648000,\"thermalState\":0,\"batteryLevel\":0.8,\"isCharging\":true,"
                "\"networkInPerSecond\":655360.0,\"networkOutPerSecond\":49152.0}$"_s)
                .match(QString::fromUtf8(lines[0]))
                .hasMatch());
    const double pressure = QJsonDocument::fromJson(lines[0])[u"memoryPressure"_s].toDouble();
    QCOMPARE(pressure, 0.6 * (double((190240 + 80010) * 16384LL) / 38654705664.0)); // to the last bit

    const auto desktop = monitorWith(
        u"--json --samples 1 --machine "_s + sourcePath(u"machines/mac-mini-m4-pro.json"_s), &console);
    QVERIFY(!desktop.out.contains("battery") && !desktop.out.contains("isCharging"));
}

void MonitorCommandTest::plainLines()
{
    StagedConsole console;
    console.current = {};
    for (const bool isTerminal : {false, true}) { // a dumb one
        const auto lines = monitorWith(u"--samples 2"_s, &console, isTerminal).out.split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY2(QRegularExpression(
                     u"^\\d\\d:00:01  Processor 16%  Memory 14.81 GB of 36 GB  Pressure normal 7%  Swap "
                     "used 1.1 GB  In 655 KB/s  Out 49.2 KB/s  Thermal state Normal  Battery · "
                     "charging 80%$"_s)
                     .match(QString::fromUtf8(lines[0]).replace(QChar::Nbsp, u' '))
                     .hasMatch(),
                 lines[0]);
    }
    QCOMPARE(monitorWith(u"--samples 2"_s, &console, false, true).out, QByteArray()); // nobody reads: it ends
}

/// Whatever ends it, the screen is given back.
void MonitorCommandTest::ends()
{
    using Event = Console::Event;
    const QList<std::tuple<std::deque<Event>, QString, bool>> ways = {
        {{Event::EndAsked}, {}, false},                // before the first sample
        {{Event::TimeUp, Event::EndAsked}, {}, false}, // later
        {{}, u"--samples 2"_s, false},
        {{}, {}, true}};
    for (const auto &[events, arguments, isGone] : ways) {
        StagedConsole console;
        console.events = events;
        QCOMPARE(monitorWith(arguments, &console, true, isGone).status, 0);
        QVERIFY(console.taken == 1 && console.givenBack == 1);
    }
}

/// From the command line to the cells: a replayed Mac, another size, and a stop in between.
void MonitorCommandTest::picture()
{
    StagedConsole console;
    console.events = {Console::Event::TimeUp, Console::Event::Resumed, Console::Event::TimeUp};
    auto outcome = monitorWith(u"--samples 2"_s, &console, true);
    PictureTerminal terminal(80, 24);
    terminal.write(outcome.out);
    QVERIFY(!terminal.hasFault && terminal.hasColor);
    QCOMPARE(terminal.timesEmptied, 2);
    const auto text = terminal.text();
    for (const auto &words :
         {u" Ada’s MacBook Pro "_s, u" Updated every second · last 2 minutes · q ends"_s, u" Processor "_s,
          u"14 cores"_s, u"of 36 GB"_s, u"✓ Pressure normal"_s, u"↓ In "_s,
          u"Thermal state ✓ Normal   Swap used 1.1 GB   Battery · charging 80%"_s})
        QVERIFY2(text.contains(words), qPrintable(text));
    QVERIFY(!text.contains(u"Collecting"_s));

    console.events = {Console::Event::EndAsked};
    terminal.write(monitorWith(u"--no-color"_s, &console, true).out);
    QVERIFY(terminal.text().contains(u"\n Collecting samples… "_s));

    console.events = {Console::Event::TimeUp, Console::Event::Resized};
    outcome = monitorWith(u"--samples 2 --no-color"_s, &console, true);
    PictureTerminal smaller(60, 12);
    smaller.write(outcome.out.mid(outcome.out.lastIndexOf("\x1b[2J")));
    QVERIFY(!smaller.hasFault && !smaller.hasColor);
    QVERIFY(smaller.text().contains(u"Battery · charging 80%"_s));
}

void MonitorCommandTest::sizes_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cores");
    for (const auto &[columns, rows] : QList<std::pair<int, int>>{
             {1, 1}, {3, 40}, {20, 5}, {40, 10}, {80, 24}, {92, 18}, {120, 40}, {300, 100}}) {
        for (const int cores : {0, 14, 64, 1000})
            QTest::addRow("%dx%d, %d cores", columns, rows, cores) << columns << rows << cores;
    }
}

/// In every size: what a terminal shows after all the changes that it was sent is the whole picture, and
/// nothing was written beyond the edges.
void MonitorCommandTest::sizes()
{
    QFETCH(const int, columns);
    QFETCH(const int, rows);
    QFETCH(const int, cores);
    const language::Formats formats(u"en"_s);
    cli::MonitorView view(formats, u"Test"_s);
    cli::Screen screen(cli::Palette::Colors256);
    PictureTerminal terminal(columns, rows);
    QByteArray sent;
    for (int second = 0; second < 130; ++second) {
        view.add(sampleAt(second, cores));
        screen.begin(columns, rows);
        view.draw(screen);
        sent = QByteArray::fromStdString(screen.update());
        terminal.write(sent);
    }
    cli::Screen fresh(cli::Palette::None);
    fresh.begin(columns, rows);
    view.draw(fresh);
    PictureTerminal whole(columns, rows);
    const auto picture = QByteArray::fromStdString(fresh.update());
    whole.write(picture);
    QCOMPARE(terminal.text(), whole.text());
    QVERIFY(!terminal.hasFault && !whole.hasFault);
    QCOMPARE(terminal.timesEmptied, 1);
    fresh.begin(columns, rows);
    view.draw(fresh);
    QCOMPARE(fresh.update(), std::string());
    if (columns >= 40 && rows >= 10) {
        for (const auto &words :
             {u"Processor"_s, u"Per core"_s, u"Memory"_s, u"Network"_s, u"Thermal state"_s})
            QVERIFY2(whole.text().contains(words), qPrintable(whole.text()));
    }
}

/// Characters of two cells, accents of their own, and what would steer the terminal.
void MonitorCommandTest::wideName()
{
    const language::Formats formats(u"en"_s);
    const cli::MonitorView view(formats, u"アダ e\u0301\u001b[2J 😀"_s);
    cli::Screen screen(cli::Palette::None);
    screen.begin(12, 3);
    view.draw(screen);
    QCOMPARE(QString::fromStdString(screen.update()).section(u"H"_s, 1, 1).section(u"\u001b"_s, 0, 0),
             u" アダ é\uFFFD[2J "_s);
}

QTEST_APPLESS_MAIN(MonitorCommandTest)
#include "MonitorCommandTest.moc"
