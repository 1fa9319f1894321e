// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QDir>
#include <QTest>

#include <functional>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

/// The counters of a tree of files, whose reader has read them once.
struct Counted
{
    explicit Counted(const QByteArray &tree)
        : files(tree)
        , machine(linuxMachine(files.root()))
        , reader(machine->counters().reader())
    {
        reader->read();
    }

    FileTree files;
    std::unique_ptr<Machine> machine;
    std::unique_ptr<CounterReader> reader;
};

/// How many readings go by until one is as wanted; 100 when none is.
int readingsUntil(CounterReader &reader, const std::function<bool(const CounterReading &)> &isWanted)
{
    int readings = 1;
    while (readings < 100 && !isWanted(reader.read()))
        ++readings;
    return readings;
}

} // namespace

class LinuxCountersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void idleTime();
    void links();
    void devicesComeAndGo_data();
    void devicesComeAndGo();
};

void LinuxCountersTest::idleTime()
{
    const QList<std::pair<QByteArray, QList<uint>>> laterTimes = {
        {"cpu0 1 0 0 5001\ncpu1 1 0 0 7001\n", {5001, 7001}},
        {"cpu0 1 0 0 4950\ncpu1 1 0 0 7001\n", {5000, 7001}}, // a little taken back
        {"cpu0 1 0 0 5001\ncpu1 1 0 0 30\n", {5001, 30}},     // begun anew after sleep
        {"cpu0 1 0 0 5001\ncpu2 1 0 0 6990\n", {5001, 6990}}, // another core in its place
        {"cpu1 1 0 0 7001\n", {7001}}};                       // one has gone offline
    for (const auto &[later, expected] : laterTimes) {
        const Counted counted("/proc/stat:\ncpu  2 0 0 12000\ncpu0 1 0 0 5000\ncpu1 1 0 0 7000\n");
        counted.files.write(u"/proc/stat"_s, "cpu  2 0 0 12000\n" + later);
        QList<uint> idle;
        const auto ticks = counted.reader->read().processorTicks.value();
        for (const ProcessorTicks &core : ticks)
            idle << core.idle;
        QCOMPARE(idle, expected);
    }
}

/// The table may be any; what is up and what a loopback, this machine's kernel says.
void LinuxCountersTest::links()
{
    const QByteArray zeros = " 0 0 0 0 0 0 0 ";
    const Counted counted(
        "/proc/net/dev:\nInter-|   Receive  |  Transmit\n face |bytes packets|bytes packets\n"
        "    lo:4294967300" +
        zeros + "7" + zeros + "\nnone-such0: 1" + zeros + "2" + zeros + "\n short: 1 2 3\n broken: x" +
        zeros + "2\n");
    const auto links = counted.reader->read().links;
    QCOMPARE(links.size(), std::size_t(2));
    QCOMPARE(links[0], (InterfaceEntry{.name = "lo",
                                       .up = links[0].up,
                                       .loopback = true,
                                       .address = {},
                                       .receivedBytes = 4,
                                       .sentBytes = 7}));
    QCOMPARE(links[1],
             (InterfaceEntry{.name = "none-such0", .address = {}, .receivedBytes = 1, .sentBytes = 2}));
}

void LinuxCountersTest::devicesComeAndGo_data()
{
    using Check = std::function<bool(const CounterReading &)>;
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Check>("isThere");
    QTest::newRow("battery") << u"/sys/class/power_supply/BAT1/uevent"_s
                             << QByteArray("POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_CAPACITY=5\n")
                             << Check([](const auto &reading) { return reading.powerSources.size() == 1; });
    QTest::newRow("thermal zone") << u"/sys/class/thermal/thermal_zone0/temp"_s << QByteArray("99000\n")
                                  << Check([](const auto &reading) { return reading.thermalState == 3; });
    QTest::newRow("compressed swap") << u"/sys/block/zram0/mm_stat"_s << QByteArray("1 1 1048576\n")
                                     << Check([](const auto &reading) {
                                            return reading.virtualMemory &&
                                                   reading.virtualMemory->compressorPageCount > 0;
                                        });
}

void LinuxCountersTest::devicesComeAndGo()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QFETCH(std::function<bool(const CounterReading &)>, isThere);
    const Counted counted("/proc/meminfo: Active(anon): 4 kB\n");
    QVERIFY(!isThere(counted.reader->read()));
    counted.files.write(path.section(u'/', 0, -2) + u"/trip_point_0_type"_s, "critical\n");
    counted.files.write(path.section(u'/', 0, -2) + u"/trip_point_0_temp"_s, "90000\n");
    counted.files.write(path, content);
    QVERIFY(readingsUntil(*counted.reader, isThere) <= 10);
    QVERIFY(isThere(counted.reader->read()));
    QVERIFY(
        QDir(QString::fromStdString(counted.files.root()) + path.section(u'/', 0, -2)).removeRecursively());
    QVERIFY(readingsUntil(*counted.reader, [&](const auto &reading) { return !isThere(reading); }) <= 10);
}

QTEST_APPLESS_MAIN(LinuxCountersTest)
#include "LinuxCountersTest.moc"
