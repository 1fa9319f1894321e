// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "PictureTerminal.h"
#include "cli/MonitorView.h"
#include "support/runWith.h"

#include <QRegularExpression>
#include <QTest>

#include <deque>

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

/// What the monitor writes on a recorded Mac.
QByteArray monitorWith(const QString &arguments, Console *console, bool isTerminal = false,
                       bool isClosed = false, const QString &machine = u"macbook-pro-m3-max"_s)
{
    const auto outcome = runWith(
        u"monitor %1 --machine %2"_s.arg(arguments, sourcePath(u"machines/%1.json"_s.arg(machine))),
        {.columns = isTerminal ? 80 : 0, .color = isTerminal, .console = console, .isClosed = isClosed});
    [&] { QCOMPARE(outcome.status, 0); }();
    return outcome.out.toUtf8();
}

/// A second of a machine with that many cores, no two seconds alike, with a gap in between.
monitor::MonitorSample sampleAt(int second, int cores)
{
    monitor::MonitorSample sample = {
        .date = monitor::Date(std::chrono::seconds(1772355600 + second + (second > 50 ? 10 : 0))),
        .cpuUsage = second % 11 / 10.0,
        .memoryUsed = (std::int64_t(second) << 29) % (std::int64_t(64) << 30),
        .memoryTotal = std::int64_t(64) << 30,
        .memoryPressure = second % 21 / 20.0,
        .thermalState = static_cast<monitor::ThermalState>(second % 5),
        .batteryLevel = second % 7 == 0 ? std::nullopt : std::optional(0.5),
        .isCharging = second % 7 == 0 ? std::nullopt : std::optional(second % 2 == 0),
        .networkInPerSecond = second % 13 * 3.1e6,
        .networkOutPerSecond = second * 977.0};
    for (int core = 0; core < cores; ++core)
        sample.perCoreUsage.push_back((core * 7 + second * 3) % 101 / 100.0);
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
    const auto lines = monitorWith(u"--json --samples 3"_s, &console, true).split('\n');
    QCOMPARE(console.taken, 0);
    QCOMPARE(console.waits, std::vector<std::chrono::nanoseconds>(3, std::chrono::seconds(1)));
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

    const auto desktop = monitorWith(u"--json --samples 1"_s, &console, false, false, u"mac-mini-m4-pro"_s);
    QVERIFY(desktop.contains("cpuUsage") && !desktop.contains("battery") && !desktop.contains("isCharging"));
}

void MonitorCommandTest::plainLines()
{
    StagedConsole console;
    console.current = {};
    for (const bool isTerminal : {false, true}) { // a dumb one
        const auto lines = monitorWith(u"--samples 2"_s, &console, isTerminal).split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY2(QRegularExpression(
                     u"^\\d\\d:00:01  Processor 16%  Memory 14.81 GB of 36 GB  Pressure normal 7%  Swap "
                     "used 1.1 GB  In 655 KB/s  Out 49.2 KB/s  Thermal state Normal  Battery · "
                     "charging 80%$"_s)
                     .match(QString::fromUtf8(lines[0]).replace(QChar::Nbsp, u' '))
                     .hasMatch(),
                 lines[0]);
    }
    monitorWith(QString(), &console, false, true); // nobody reads: it ends
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
        monitorWith(arguments, &console, true, isGone);
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
    terminal.write(outcome);
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
    terminal.write(monitorWith(u"--no-color"_s, &console, true));
    QVERIFY(terminal.text().contains(u"\n Collecting samples… "_s));

    console.events = {Console::Event::TimeUp, Console::Event::Resized};
    outcome = monitorWith(u"--samples 2 --no-color"_s, &console, true);
    PictureTerminal smaller(60, 12);
    smaller.write(outcome.mid(outcome.lastIndexOf("\x1b[2J")));
    QVERIFY(!smaller.hasFault && !smaller.hasColor);
    QVERIFY(smaller.text().contains(u"Battery · charging 80%"_s));
}

void MonitorCommandTest::sizes_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cores");
    for (const auto &[columns, rows] :
         QList<std::pair<int, int>>{{1, 1}, {3, 40}, {20, 5}, {40, 10}, {80, 24}, {92, 18}, {200, 60}}) {
        for (const int cores : {0, 14, 1000})
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
        for (const auto &words : {u"Processor"_s, u"Per core"_s, u"Memory"_s, u"Network"_s,
                                  u"Pressure normal"_s, u"Thermal state"_s})
            QVERIFY2(whole.text().contains(words), qPrintable(whole.text()));
        // Both rates with their units, whatever else there is room for.
        QCOMPARE(whole.text().count(u"B/s"_s) >= 2, true);
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
