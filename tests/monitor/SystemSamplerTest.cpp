// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/SystemSampler.h"

#include "support/Recordings.h"

#include <QTest>

using namespace quillmark;
using namespace quillmark::monitor;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

/// A machine of 1000 bytes of memory, in pages of one byte, with these samples.
std::unique_ptr<platform::Machine> machineWith(const QByteArray &samples, qint64 physicalMemory = 1000)
{
    return changedMachine("{\"pageSize\": 1, \"physicalMemory\": " + QByteArray::number(physicalMemory) +
                          ", \"samples\": " + samples + "}");
}

std::vector<MonitorSample> samplesOf(const platform::Machine &machine, std::size_t count, bool primed = true)
{
    SystemSampler sampler(machine);
    if (primed)
        sampler.prime();
    std::vector<MonitorSample> samples(count);
    for (auto &sample : samples)
        sample = sampler.sample();
    return samples;
}

/// "0.5: 1 0", the whole machine and its cores.
QString loads(const MonitorSample &sample)
{
    auto text = QString::number(sample.cpuUsage) + u':';
    for (const double load : sample.perCoreUsage)
        text += u' ' + QString::number(load);
    return text;
}

QByteArray link(const char *name, const char *received, const char *sent, const char *more = "\"up\": true")
{
    return QByteArray(R"({"name": ")") + name + R"(", "family": "link", "receivedBytes": )" + received +
           R"(, "sentBytes": )" + sent + ", " + more + "}";
}

} // namespace

class SystemSamplerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadOfCores_data();
    void loadOfCores();
    void memory_data();
    void memory();
    void swap();
    void network_data();
    void network();
    void battery();
    void datesAndHeat();
};

void SystemSamplerTest::loadOfCores_data()
{
    QTest::addColumn<QByteArray>("ticks"); // of each reading
    QTest::addColumn<bool>("primed");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &ticks, const QStringList &expected,
                        bool primed = true) { QTest::newRow(name) << ticks << primed << expected; };
    row("by ticks, not by cores; all three states are busy",
        "[[0,0,0,0],[0,0,0,0]] [[10,20,0,10],[0,0,10,0]]", {u"0.8: 1 0"_s});
    row("never primed", "[[5,5,5,5]] [[6,5,6,5]]", {u"0: 0"_s, u"0.5: 0.5"_s}, false);
    row("another number of cores", "[[5,5,5,5]] [[6,5,5,5],[1,1,1,1]] [[7,5,5,5],[1,1,2,1]]",
        {u"0: 0 0"_s, u"0.5: 1 0"_s});
    row("unreadable once: the base stays", "[[0,0,0,0]] null [[1,0,3,0]]", {u"0:"_s, u"0.25: 0.25"_s});
    row("unreadable when primed", "null [[5,5,5,5]] [[6,5,6,5]]", {u"0: 0"_s, u"0.5: 0.5"_s});
    row("no cores", "[] []", {u"0:"_s});
    // Without any correction a wrap of a busy counter makes the total fall behind: never above 1.
    row("idle counter wrapped", "[[0,0,4294967295,0]] [[4,0,3,0]] [[5,0,4,0]]",
        {u"%1: %1"_s.arg(4.0 / (18446744073709551616.0 - 4294967288.0)), u"0.5: 0.5"_s});
    row("busy counter wrapped", "[[4294967295,0,0,0]] [[3,0,8589934,0]] [[4,0,8589935,0]]",
        {u"1: 1"_s, u"0.5: 0.5"_s});
}

void SystemSamplerTest::loadOfCores()
{
    QFETCH(const QByteArray, ticks);
    QFETCH(const bool, primed);
    QFETCH(const QStringList, expected);
    QByteArray samples;
    for (const auto &reading : ticks.split(' '))
        samples += (samples.isEmpty() ? "[{\"processorTicks\": " : ", {\"processorTicks\": ") + reading + '}';
    QStringList actual;
    for (const auto &sample :
         samplesOf(*machineWith(samples + ']'), static_cast<std::size_t>(expected.size()), primed))
        actual += loads(sample);
    QCOMPARE(actual, expected);
}

void SystemSamplerTest::memory_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<qint64>("physicalMemory");
    QTest::addColumn<qint64>("used");
    QTest::addColumn<double>("pressure");
    const auto row = [](const char *name, const char *pages, const char *level, qint64 used, double pressure,
                        qint64 physicalMemory = 1000) {
        QTest::newRow(name) << QByteArray(R"({"virtualMemory": )") + pages +
                                   R"(, "sysctl": {"kern.memorystatus_vm_pressure_level": )" + level + "}}"
                            << physicalMemory << used << pressure;
    };
    const auto *half = R"({"active_count": 300, "wire_count": 400, "compressor_page_count": 100})";
    row("normal", half, "1", 800, 0.6 * 0.5);
    row("warning", half, "2", 800, 0.6 + 0.5 * 0.25);
    row("critical", half, "4", 800, 0.85 + 0.5 * 0.15);
    row("a level that there is not", half, "3", 800, 0.5);
    row("level of another width", half, R"({"int64": 4})", 800, 0.5);
    row("critical with nothing used", "{}", "4", 0, 0.85);
    row("normal with all wired", R"({"wire_count": 1000})", "1", 1000, 0.6);
    // The most that a recording may name; a sum of three of them is still one of bytes.
    row("all counts at their most",
        R"({"active_count": 1152921504606846976, "wire_count": 1152921504606846976,
        "compressor_page_count": 1152921504606846976})",
        "2", qint64(3) << 60, 0.85);
    row("more than there is", R"({"wire_count": 5000})", "null", 5000, 1);
    row("no memory known", half, "4", 800, 0.85, 0);
    row("pages unreadable", "null", "4", 0, 0);
}

void SystemSamplerTest::memory()
{
    QFETCH(const QByteArray, members);
    QFETCH(const qint64, physicalMemory);
    const auto sample = samplesOf(*machineWith('[' + members + ']', physicalMemory), 1).front();
    QTEST(qint64(sample.memoryUsed), "used");
    QTEST(sample.memoryPressure, "pressure");
    QCOMPARE(qint64(sample.memoryTotal), physicalMemory);
}

void SystemSamplerTest::swap()
{
    const QByteArray start(32, '0');
    const QList<std::pair<QByteArray, std::int64_t>> records = {
        {R"({"hex": ")" + start + R"(00000040000000000040000001000000"})", std::int64_t(1) << 30},
        {R"({"hex": ")" + start + QByteArray(34, '1') + R"("})", 0}, // longer
        {"null", 0}};
    for (const auto &[record, used] : records)
        QCOMPARE(
            samplesOf(*machineWith(R"([{"sysctl": {"vm.swapusage": )" + record + "}}]"), 1).front().swapUsed,
            used);
}

void SystemSamplerTest::network_data()
{
    QTest::addColumn<QByteArray>("samples");
    QTest::addColumn<QStringList>("expected"); // "in out" in bytes a second
    const auto row = [](const char *name, const QList<std::pair<const char *, QByteArray>> &readings,
                        const QStringList &expected) {
        QByteArray samples;
        for (const auto &[time, links] : readings)
            samples += QByteArray(samples.isEmpty() ? "[" : ", ") + R"({"date": "2026-03-01T09:)" + time +
                       R"(Z", "interfaces": )" + links + '}';
        QTest::newRow(name) << samples + ']' << expected;
    };
    const auto en0 = [](const char *received, const char *sent) {
        return '[' + link("en0", received, sent) + ']';
    };
    row("by the time between", {{"00:00.000", en0("1000", "0")}, {"00:02.500", en0("6000", "25")}},
        {u"2000 10"_s});
    row("counter wrapped", {{"00:00.000", en0("4294967290", "4294967295")}, {"00:01.000", en0("4", "0")}},
        {u"10 1"_s});
    row("too soon, and the base moves on",
        {{"00:00.000", en0("0", "0")}, {"00:00.200", en0("500", "5")}, {"00:01.200", en0("700", "6")}},
        {u"0 0"_s, u"200 1"_s});
    row("clock set back",
        {{"00:10.000", en0("0", "0")}, {"00:05.000", en0("500", "5")}, {"00:06.000", en0("700", "6")}},
        {u"0 0"_s, u"200 1"_s});
    row("interface comes, goes and comes again",
        {{"00:00.000", "[]"},
         {"00:01.000", en0("5000", "50")},
         {"00:02.000", "null"},
         {"00:03.000", en0("9000", "90")},
         {"00:04.000", en0("9001", "92")}},
        {u"0 0"_s, u"0 0"_s, u"0 0"_s, u"1 2"_s});
    QByteArray before;
    QByteArray after;
    for (const char *name :
         {"lo0",       "lo",       "utun3",   "ipsec0", "gif0", "stf0",  "awdl0", "llw0",
          "bridge100", "anpi0",    "ap1",     "apple",  "tun0", "tap0",  "wg0",   "tailscale0",
          "docker0",   "veth1f2e", "br-5a17", "virbr0", "en5",  "wlan0", "enap"}) {
        before += (before.isEmpty() ? "[" : ", ") + link(name, "0", "0");
        after += (after.isEmpty() ? "[" : ", ") + link(name, "100", "10");
    }
    row("what counts by its name", {{"00:00.000", before + ']'}, {"00:01.000", after + ']'}}, {u"300 30"_s});
    row("neither down, nor loopback, nor without counters, nor an address",
        {{"00:00.000", '[' + link("en0", "0", "0", "\"up\": false") + ',' +
                           link("en1", "0", "0", R"("up": true, "loopback": true)") + ']'},
         {"00:01.000",
          '[' + link("en0", "1", "1", "\"up\": false") + ',' +
              link("en1", "1", "1", R"("up": true, "loopback": true)") +
              R"(, {"name": "en2", "family": "ipv4", "up": true}, {"name": "en3", "up": true, "family": "link"}])"}},
        {u"0 0"_s});
    row("the later of two entries",
        {{"00:00.000", en0("0", "0")},
         {"00:01.000", '[' + link("en0", "7", "7") + ',' + link("en0", "9", "8") + ']'}},
        {u"9 8"_s});
}

void SystemSamplerTest::network()
{
    QFETCH(const QByteArray, samples);
    QFETCH(const QStringList, expected);
    QStringList actual;
    for (const auto &sample : samplesOf(*machineWith(samples), static_cast<std::size_t>(expected.size())))
        actual += u"%1 %2"_s.arg(sample.networkInPerSecond).arg(sample.networkOutPerSecond);
    QCOMPARE(actual, expected);
}

void SystemSamplerTest::battery()
{
    const auto shown = [](const QByteArray &sources) {
        const auto sample = samplesOf(*machineWith(R"([{"powerSources": )" + sources + "}]"), 1).front();
        if (sample.batteryLevel.has_value() != sample.isCharging.has_value())
            return u"one of both"_s;
        if (!sample.batteryLevel)
            return u"none"_s;
        return QString::number(*sample.batteryLevel) + (*sample.isCharging ? u" charging"_s : QString());
    };
    for (const auto *sources : {"[]", "null", R"([{"Type": "UPS", "Current Capacity": 5}, {"Type": 5}])"})
        QCOMPARE(shown(sources), u"none"_s);
    const QList<std::pair<QByteArray, QString>> batteries = {
        {R"("Current Capacity": 40, "Max Capacity": 80, "Is Charging": true)", u"0.5 charging"_s},
        {R"("Name": "x")", u"0"_s},
        {R"("Current Capacity": 40, "Max Capacity": "80", "Is Charging": 1)", u"0.4"_s},
        {R"("Current Capacity": 120)", u"1"_s},
        {R"("Current Capacity": -5)", u"0"_s},
        {R"("Current Capacity": 40, "Max Capacity": 0)", u"0"_s}};
    for (const auto &[members, expected] : batteries)
        QCOMPARE(shown(R"([{"Type": "UPS"}, {"Type": "InternalBattery", )" + members +
                       R"(}, {"Type": "InternalBattery", "Current Capacity": 1}])"),
                 expected);
}

void SystemSamplerTest::datesAndHeat()
{
    const auto before = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    const auto samples = samplesOf(
        *machineWith(R"([{}, {"thermalState": 7}, {"date": "2026-03-01T09:00:00.250Z", "thermalState": 2}])"),
        2);
    QVERIFY(samples[0].date >= before && samples[0].date <= std::chrono::system_clock::now());
    QCOMPARE(int(samples[0].thermalState), 7);
    QCOMPARE(isoText(samples[1].id()), std::string("2026-03-01T09:00:00.250Z"));
    QCOMPARE(samples[1].thermalState, ThermalState::Serious);
}

QTEST_APPLESS_MAIN(SystemSamplerTest)
#include "SystemSamplerTest.moc"
