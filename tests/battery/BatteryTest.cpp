// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/BatteryJudgement.h"
#include "platform/recorded/recordMachine.h"
#include "support/Recordings.h"

#include <QTest>

#include <functional>

using namespace quillmark;
using namespace quillmark::battery;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

template <typename Number>
QString shown(const std::optional<Number> &number)
{
    return number ? QString::number(*number) : u"-"_s;
}

QString shown(const std::optional<std::string> &text)
{
    return text ? QString::fromStdString(*text) : u"-"_s;
}

QString shown(std::optional<bool> flag)
{
    return flag ? (*flag ? u"yes"_s : u"no"_s) : u"-"_s;
}

QString shown(std::optional<ChargeState> state)
{
    const QStringList words = {u"charging"_s, u"full"_s, u"connected"_s, u"on battery"_s};
    return state ? words.at(static_cast<qsizetype>(*state)) : u"-"_s;
}

QString shown(const std::optional<TimeRemaining> &time)
{
    return time ? shown(time->minutes) + (time->untilFull ? u" to full"_s : u" to empty"_s) : u"-"_s;
}

/// The figures, each with its name; those that are absent are left out.
QStringList figures(const BatteryReading &reading)
{
    QStringList all = {
        u"design "_s + shown(reading.designCapacity),   u"present "_s + shown(reading.presentCapacity),
        u"cycles "_s + shown(reading.cycleCount),       u"rated "_s + shown(reading.ratedCycleCount),
        u"temperature "_s + shown(reading.temperature), u"voltage "_s + shown(reading.voltage),
        u"current "_s + shown(reading.current),         u"level "_s + shown(reading.level),
        u"charging "_s + shown(reading.isCharging),     u"AC "_s + shown(reading.onAC),
        u"state "_s + shown(reading.chargeState),       u"time "_s + shown(reading.timeRemaining),
        u"health "_s + shown(reading.health),           u"condition "_s + shown(reading.condition),
        u"failure "_s + shown(reading.failureBits),     u"limit "_s + shown(reading.chargeLimit)};
    all.removeIf([](const QString &figure) { return figure.endsWith(u" -"); });
    if (reading.unit == CapacityUnit::MilliwattHours)
        all += u"by energy"_s;
    return all;
}

std::optional<BatteryReading> readingOf(const QByteArray &changes, bool isAppleSilicon = true)
{
    return readBattery(*changedMachine(changes), isAppleSilicon);
}

/// A Mac's battery, of whose service and power source these are the members.
QByteArray mac(const QByteArray &service, const QByteArray &source = {})
{
    return R"({"registry": {"AppleSmartBattery": {)" + service +
           R"(}}, "powerSources": [{"Type": "InternalBattery")" + (source.isEmpty() ? "" : ", ") + source +
           "}]}";
}

/// A battery of Linux and a line, given as "NAME=value NAME=value".
QByteArray linuxBattery(const QByteArray &properties, const char *lineOnline = "0")
{
    QByteArray members = R"("POWER_SUPPLY_TYPE": "Battery")";
    for (const auto &property : properties.split(',')) {
        const auto separator = property.indexOf('=');
        members +=
            ", \"POWER_SUPPLY_" + property.left(separator) + "\": \"" + property.mid(separator + 1) + '"';
    }
    return R"({"powerSupplies": {"AC": {"POWER_SUPPLY_TYPE": "Mains", "POWER_SUPPLY_ONLINE": ")" +
           QByteArray(lineOnline) + R"("}, "BAT0": {)" + members + "}}}";
}

/// A battery that is in order in every way.
BatteryReading goodBattery()
{
    return {.designCapacity = 1000,
            .presentCapacity = 1000,
            .cycleCount = 10,
            .ratedCycleCount = 1000,
            .temperature = 30,
            .health = "Good",
            .failureBits = 0};
}

} // namespace

class BatteryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readings_data();
    void readings();
    void largeNumbers();
    void noBattery();
    void severalBatteries();
    void reportedFigure();
    void health_data();
    void health();
    void judgements_data();
    void judgements();
};

void BatteryTest::readings_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<bool>("isAppleSilicon");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &changes, const QStringList &expected,
                        bool isAppleSilicon = true) {
        QTest::newRow(name) << changes << isAppleSilicon << expected;
    };
    row("nothing told", mac(""), {});
    row("keys in the inner dictionary only",
        mac(R"("DesignCapacity": 0, "BatteryData": {"DesignCapacity": 5103, "CycleCount": 7, "NominalChargeCapacity": 5000})"),
        {u"design 5103"_s, u"present 5000"_s, u"cycles 7"_s});
    row("the raw figure before the others",
        mac(R"("AppleRawMaxCapacity": 4490, "NominalChargeCapacity": 4620, "MaxCapacity": 100)"),
        {u"present 4490"_s});
    row("a percentage is no capacity", mac(R"("AppleRawMaxCapacity": 0, "MaxCapacity": 100)"), {});
    row("more than a percentage", mac(R"("MaxCapacity": 101)"), {u"present 101"_s});
    row("capacity of an Intel Mac", mac(R"("MaxCapacity": 100)"), {u"present 100"_s}, false);
    row("no cycles yet, and a rating that means nothing",
        mac(R"("CycleCount": 0, "DesignCycleCount9C": 0, "DesignCycleCount70": 13)"), {u"cycles 0"_s});
    row("values of other types",
        mac(R"("DesignCapacity": "5103", "CycleCount": 1.5, "Temperature": true, "Voltage": {}, "Amperage": [])",
            R"("Current Capacity": "80", "Is Charging": 1, "Power Source State": true, "BatteryHealth": 5)"),
        {});

    row("tenths of a kelvin", mac(R"("Temperature": 3000)"), {u"temperature 26.9"_s});
    row("coldest", mac(R"("Temperature": 2532)"), {u"temperature -19.9"_s});
    row("colder", mac(R"("Temperature": 2531)"), {});
    row("hottest", mac(R"("Temperature": 3531)"), {u"temperature 80"_s});
    row("hotter", mac(R"("Temperature": 3532)"), {});
    row("no temperature", mac(R"("Temperature": 9223372036854775807)"), {});
    row("current of 32 bits without its sign", mac(R"("Amperage": 4294964418)"), {u"current -2878"_s});
    row("current with its sign", mac(R"("Amperage": -1467, "Voltage": 11604)"),
        {u"voltage 11604"_s, u"current -1467"_s});

    const auto source = [&row](const char *name, const QByteArray &members, const QStringList &expected,
                               bool isAppleSilicon = true) {
        row(name, mac("", members), expected, isAppleSilicon);
    };
    const QByteArray onLine = R"("Power Source State": "AC Power", )";
    source("charging", onLine + R"("Is Charging": true, "Current Capacity": 96, "Time to Full Charge": 9)",
           {u"level 0.96"_s, u"charging yes"_s, u"AC yes"_s, u"state charging"_s, u"time 9 to full"_s});
    source("full by its flag", onLine + R"("Is Charging": false, "Is Charged": true, "Current Capacity": 98)",
           {u"level 0.98"_s, u"charging no"_s, u"AC yes"_s, u"state full"_s});
    source("level in mAh", R"("Current Capacity": 3000, "Max Capacity": 6000)", {u"level 0.5"_s});
    source("level of a maximum that is none", R"("Current Capacity": 50, "Max Capacity": -5)", {});
    source("full by its level", onLine + R"("Current Capacity": 100, "Time to Full Charge": 5)",
           {u"level 1"_s, u"AC yes"_s, u"state full"_s});
    source("held below full", onLine + R"("Is Charging": false, "Current Capacity": 99)",
           {u"level 0.99"_s, u"charging no"_s, u"AC yes"_s, u"state connected"_s});
    source("full for an Intel Mac", onLine + R"("Is Charging": false, "Current Capacity": 95)",
           {u"level 0.95"_s, u"charging no"_s, u"AC yes"_s, u"state full"_s}, false);
    source("not full for it", onLine + R"("Is Charging": false, "Current Capacity": 94)",
           {u"level 0.94"_s, u"charging no"_s, u"AC yes"_s, u"state connected"_s}, false);
    source("charging on for it", onLine + R"("Is Charging": true, "Current Capacity": 95)",
           {u"level 0.95"_s, u"charging yes"_s, u"AC yes"_s, u"state charging"_s}, false);
    source("connected, and nothing more told", onLine + R"("Current Capacity": 50)",
           {u"level 0.5"_s, u"AC yes"_s});
    source("neither state told", R"("Is Charging": false, "Time to Empty": 100)", {u"charging no"_s});
    const QStringList onBattery = {u"AC no"_s, u"state on battery"_s};
    const QByteArray unplugged = R"("Power Source State": "Battery Power", "Time to Empty": )";
    source("time estimated", unplugged + "-1", onBattery + QStringList(u"time - to empty"_s));
    source("time estimated by another sign", unplugged + "65535",
           onBattery + QStringList(u"time - to empty"_s));
    source("no time", unplugged + "0", onBattery);
    source("longer than any battery lasts", unplugged + "10081", onBattery);
    source("a week", unplugged + "10080", onBattery + QStringList(u"time 10080 to empty"_s));

    row("Linux by energy",
        linuxBattery(
            "STATUS=Discharging,ENERGY_FULL_DESIGN=57000000,ENERGY_FULL=52100000,ENERGY_NOW=33340000,"
            "POWER_NOW=6890000,CYCLE_COUNT=0,TEMP=-55,VOLTAGE_NOW=15480000,CAPACITY=64,HEALTH=Unknown"),
        {u"design 57000"_s, u"present 52100"_s, u"temperature -5.5"_s, u"voltage 15480"_s, u"level 0.64"_s,
         u"charging no"_s, u"AC no"_s, u"state on battery"_s, u"time 290 to empty"_s, u"by energy"_s});
    row("Linux by charge",
        linuxBattery("STATUS=Charging,CHARGE_FULL_DESIGN=5000000,CHARGE_FULL=4000000,CHARGE_NOW=3000000,"
                     "ENERGY_FULL=1,CURRENT_NOW=-500000,CYCLE_COUNT=3,CAPACITY=101,HEALTH=Good,"
                     "CHARGE_CONTROL_END_THRESHOLD=101"),
        {u"design 5000"_s, u"present 4000"_s, u"cycles 3"_s, u"current 500"_s, u"level 1"_s,
         u"charging yes"_s, u"AC yes"_s, u"state charging"_s, u"time 120 to full"_s, u"health Good"_s});
    row("Linux at rest",
        linuxBattery("STATUS=Discharging,ENERGY_NOW=1000,POWER_NOW=0,CHARGE_CONTROL_END_THRESHOLD=80"),
        {u"charging no"_s, u"AC no"_s, u"state on battery"_s, u"limit 80"_s});
    row("Linux, drained while connected",
        linuxBattery("STATUS=Discharging,CURRENT_NOW=700000,CHARGE_NOW=1000000,CAPACITY=x", "2"),
        {u"current -700"_s, u"charging no"_s, u"AC yes"_s, u"state connected"_s});
    row("Linux, level not told", linuxBattery("CHARGE_NOW=3000000,CHARGE_FULL=4000000"),
        {u"present 4000"_s, u"level 0.75"_s});
    row("Linux, state not known", linuxBattery("STATUS=Unknown,CAPACITY=-1"), {});
}

void BatteryTest::readings()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const bool, isAppleSilicon);
    const auto reading = readingOf(changes, isAppleSilicon);
    QVERIFY(reading);
    QTEST(figures(*reading), "expected");
}

/// A current that was printed without its sign; also in a recording of the recording.
void BatteryTest::largeNumbers()
{
    auto recording = changedRecording(mac(R"("Amperage": "large")"));
    const auto machine = machineFrom(recording.replace("\"large\"", "18446744073709548738"));
    QCOMPARE(readBattery(*machine, true)->current, -2878);
    const auto again =
        machineFrom(QByteArray::fromStdString(recordMachine(*machine, platform::RecordedNames::LeaveOut)));
    QCOMPARE(readBattery(*again, true)->current, -2878);
}

void BatteryTest::noBattery()
{
    for (const QByteArray &changes :
         {QByteArray("{}"), QByteArray(R"({"registry": {"AppleSmartBattery": {"CycleCount": 3}}})"),
          mac(R"("BatteryInstalled": false, "CycleCount": 3)"),
          QByteArray(R"({"powerSources": [{"Type": "UPS", "Current Capacity": 5}]})"),
          linuxBattery("PRESENT=0"), linuxBattery("SCOPE=Device"),
          // Where the supplies are listed, they alone count.
          QByteArray(R"({"powerSupplies": {}, "powerSources": [{"Type": "InternalBattery"}]})")})
        QVERIFY2(!readingOf(changes), changes.constData());
}

/// Of two batteries, as some laptops have them, one waits while the other is drained: the machine runs on
/// neither's line. The first by name stands for the machine.
void BatteryTest::severalBatteries()
{
    const auto machine = changedMachine(R"({"powerSupplies": {
        "AC": {"POWER_SUPPLY_TYPE": "Mains", "POWER_SUPPLY_ONLINE": "0"},
        "BAT1": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_STATUS": "Discharging",
                 "POWER_SUPPLY_ENERGY_FULL_DESIGN": "47500000", "POWER_SUPPLY_ENERGY_FULL": "23000000"},
        "BAT0": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_STATUS": "Not charging",
                 "POWER_SUPPLY_ENERGY_FULL_DESIGN": "23500000", "POWER_SUPPLY_ENERGY_FULL": "23000000"},
        "BAT2": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_PRESENT": "0"},
        "mouse": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_SCOPE": "Device"}}})");
    const auto batteries = readBatteries(*machine, false);
    QCOMPARE(batteries.size(), std::size_t{2});
    QCOMPARE(shown(batteries[0].name), u"BAT0"_s);
    QCOMPARE(shown(batteries[1].name), u"BAT1"_s);
    for (const auto &reading : batteries)
        QVERIFY(reading.onAC == false && reading.chargeState == ChargeState::OnBattery);
    QCOMPARE(judge(batteries[0]).health, Health::Normal);
    QCOMPARE(judge(batteries[1]).health, Health::Worn);
    QVERIFY(readBattery(*machine, false) == batteries[0]);
}

/// Also of a recording that was made of the recording; a machine without the report tells nothing.
void BatteryTest::reportedFigure()
{
    const auto reported = [](const QByteArray &maximum) {
        const auto machine = changedMachine(
            R"({"powerReport": {"sppower_battery_health_maximum_capacity": )" + maximum + "}}");
        const auto figure = reportedMaximumPercent(*machine);
        return figure == reportedMaximumPercent(*recordedAgain(*machine)) ? shown(figure) : u"two figures"_s;
    };
    QCOMPARE(reported(R"("94%")"), u"94"_s);
    QCOMPARE(reported(R"("94\u00a0%")"), u"94"_s);
    QCOMPARE(reported(R"("%100")"), u"100"_s);
    for (const char *none :
         {R"("101%")", R"("0%")", R"("99999999999999999999%")", R"("94")", R"("")", "94", "null"})
        QCOMPARE(reported(none), u"-"_s);
    QVERIFY(!reportedMaximumPercent(*changedMachine()));
}

void BatteryTest::health_data()
{
    QTest::addColumn<qint64>("present");
    QTest::addColumn<qint64>("design");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, qint64 present, qint64 design, const char *expected) {
        QTest::newRow(name) << present << design << QString::fromLatin1(expected);
    };
    row("a little more than new", 5170, 5103, "100 Normal");
    row("as much as a gauge may say", 1200, 1000, "100 Normal");
    row("a broken gauge", 1201, 1000, "- Not reported");
    row("80 after rounding", 795, 1000, "80 Normal");
    row("79", 794, 1000, "79 Reduced");
    row("60 after rounding", 595, 1000, "60 Reduced");
    row("59", 594, 1000, "59 Worn");
    row("no design", 1000, 0, "- Not reported");
    row("nothing present", 0, 1000, "- Not reported");
}

void BatteryTest::health()
{
    QFETCH(const qint64, present);
    QFETCH(const qint64, design);
    const auto judgement = judge({.designCapacity = design, .presentCapacity = present});
    const QString actual = shown(judgement.healthPercent) + u' ' + title(judgement.health);
    QTEST(actual, "expected");
}

void BatteryTest::judgements_data()
{
    using Change = std::function<void(BatteryReading &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("expected"); // condition, cycles, warmth, overall, cause
    const auto row = [](const char *name, const Change &change, const char *expected) {
        QTest::newRow(name) << change << QString::fromLatin1(expected);
    };
    row(
        "in order", [](auto &) {}, "Normal, supported, 2, supported, ");
    row(
        "reduced", [](auto &r) { r.presentCapacity = 700; }, "Normal, supported, 2, warning, ");
    row(
        "worn and hot",
        [](auto &r) {
            r.presentCapacity = 500;
            r.temperature = 50;
        },
        "Normal, supported, 3, unsupported, ");
    row(
        "failure bits", [](auto &r) { r.failureBits = 8; },
        "Permanent failure, supported, 2, warning, Permanent failure");
    row(
        "failure word",
        [](auto &r) {
            r.health = "Poor";
            r.condition = "Permanent Battery Failure";
        },
        "Permanent failure, supported, 2, warning, Permanent failure");
    row(
        "word in the one key", [](auto &r) { r.health = "Check Battery"; },
        "Service recommended, supported, 2, warning, Service recommended");
    row(
        "word in the other key", [](auto &r) { r.condition = "Check Battery"; },
        "Service recommended, supported, 2, warning, Service recommended");
    row(
        "word of Linux", [](auto &r) { r.health = "Cell imbalance"; },
        "Service recommended, supported, 2, warning, Service recommended");
    row(
        "word that is not known", [](auto &r) { r.health = "Overheat"; },
        "Overheat, supported, 2, supported, ");
    row(
        "further word that is not known", [](auto &r) { r.condition = "Odd"; },
        "Normal, supported, 2, supported, ");
    row(
        "no word", [](auto &r) { r.health.reset(); }, "Not reported, supported, 2, supported, ");
    row(
        "one cycle before the rating", [](auto &r) { r.cycleCount = 999; },
        "Normal, supported, 2, supported, ");
    row(
        "at the rating", [](auto &r) { r.cycleCount = 1000; },
        "Normal, warning, 2, warning, It has reached its rated cycles.");
    row(
        "no rating", [](auto &r) { r.ratedCycleCount.reset(); }, "Normal, info, 2, supported, ");
    row(
        "warm", [](auto &r) { r.temperature = 45; }, "Normal, supported, 2, supported, ");
    row(
        "hot", [](auto &r) { r.temperature = 45.1; }, "Normal, supported, 3, warning, It is hot.");
    row(
        "not cold", [](auto &r) { r.temperature = 10; }, "Normal, supported, 2, supported, ");
    row(
        "cold is no fault", [](auto &r) { r.temperature = 9.9; }, "Normal, supported, 1, supported, ");
    row(
        "nothing told", [](auto &r) { r = {}; }, "Not reported, info, 0, info, ");
    row(
        "cycles alone tell nothing of the battery",
        [](auto &r) { r = {.cycleCount = 5, .ratedCycleCount = 1000}; },
        "Not reported, supported, 0, info, ");
}

void BatteryTest::judgements()
{
    QFETCH(const std::function<void(BatteryReading &)>, change);
    auto reading = goodBattery();
    change(reading);
    const auto judgement = judge(reading);
    const auto word = [](Rating rating) {
        return QStringList({u"info"_s, u"supported"_s, u"warning"_s, u"unsupported"_s})
            .at(static_cast<qsizetype>(rating));
    };
    const auto actual = QStringList{conditionTitle(judgement), word(cycleRating(judgement)),
                                    QString::number(static_cast<int>(judgement.warmth)),
                                    word(judgement.overall), causeText(judgement)}
                            .join(u", "_s);
    QTEST(actual, "expected");
    // The headline speaks of attention exactly where a cause is named beside it.
    QCOMPARE(headline(judgement) == u"This battery needs attention."_s, !causeText(judgement).isEmpty());
    QVERIFY(!headline(judgement).isEmpty());
}

QTEST_GUILESS_MAIN(BatteryTest)
#include "BatteryTest.moc"
