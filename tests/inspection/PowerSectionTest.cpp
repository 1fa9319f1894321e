// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QRegularExpression>
#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

QStringList rowsOf(const platform::Machine &machine, const QString &language = u"en"_s)
{
    return rows(DeviceProbe::powerSection(machine, language::Formats(language)));
}

/// The members of a battery's service and of its power source on a Mac.
QByteArray mac(const QByteArray &service, const QByteArray &source = R"("Name": "InternalBattery-0")")
{
    return R"({"registry": {"AppleSmartBattery": {)" + service +
           R"(}}, "powerSources": [{"Type": "InternalBattery", )" + source + "}]}";
}

} // namespace

class PowerSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeSections_data();
    void wholeSections();
    void answers_data();
    void answers();
    void volatileRows();
    void otherLanguage();
    void identifiers();
};

void PowerSectionTest::wholeSections_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &changes, const QStringList &expected) {
        QTest::newRow(name) << changes << expected;
    };
    row("a Mac without a list", R"({"operatingSystem": {"major": 11}})",
        {u"powerSource | Not readable | info"_s, u"battery | Not readable | info"_s});
    row("a Mac before low power mode", R"({"operatingSystem": {"major": 11}, "powerSources": []})",
        {u"powerSource | Not readable | info"_s, u"battery | None (desktop) | info"_s});
    row("a Mac's battery of which nothing is told", mac(""),
        {u"powerSource | Not readable | info"_s, u"battery | Built in | supported"_s,
         u"batteryHealth | Not readable | info"_s, u"batteryCondition | Not readable | info"_s,
         u"cycleCount | Not readable | info"_s, u"charge | Not readable | info"_s,
         u"charging | Not readable | info"_s, u"lowPowerMode | Not readable | info"_s});
    row("a Linux battery of which nothing is told",
        onLinux(R"("powerSupplies": {"BAT0": {"POWER_SUPPLY_TYPE": "Battery"}})"),
        {u"powerSource | Not readable | info"_s, u"battery | Built in | supported"_s,
         u"batteryHealth | Not readable | info"_s, u"cycleCount | Not readable | info"_s,
         u"charge | Not readable | info"_s, u"charging | Not readable | info"_s});
    row("a Linux desktop", onLinux(R"("powerSupplies": {}, "powerSettings": {"platformProfile": "custom"})"),
        {u"powerSource | Mains power | info"_s, u"battery | None (desktop) | info"_s,
         u"powerProfile | custom | info"_s});
    row("a Linux desktop on its UPS",
        onLinux(
            R"("powerSupplies": {"ups": {"POWER_SUPPLY_TYPE": "UPS", "POWER_SUPPLY_STATUS": "Discharging"}})"),
        {u"powerSource | UPS | info"_s, u"battery | None (desktop) | info"_s});
}

void PowerSectionTest::wholeSections()
{
    QFETCH(const QByteArray, changes);
    QTEST(rowsOf(*changedMachine(changes)), "expected");
}

void PowerSectionTest::answers_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("keys"); // of the rows that matter
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &changes, const char *keys,
                        const QStringList &expected) {
        QTest::newRow(name) << changes << QString::fromLatin1(keys) << expected;
    };
    const auto source = [&row](const char *word, const QByteArray &sources, const char *expected) {
        row(qPrintable(
                QString::fromLatin1(word + QByteArray(sources.isEmpty() ? " alone" : " with a battery"))),
            R"({"powerSettings": {"providingSource": ")" + QByteArray(word) + R"("}, "powerSources": [)" +
                sources + "]}",
            "powerSource", {QString::fromLatin1(expected)});
    };
    const QByteArray battery = R"({"Type": "InternalBattery"})";
    source("AC Power", battery, "powerSource | Power adapter | info");
    source("AC Power", "", "powerSource | Mains power | info");
    source("Battery Power", battery, "powerSource | Battery | info");
    source("UPS Power", "", "powerSource | UPS | info");
    source("Off Line", battery, "powerSource | Not readable | info");

    const auto health = [&row](const char *name, int present, const char *expected) {
        row(name, mac(R"("DesignCapacity": 1000, "AppleRawMaxCapacity": )" + QByteArray::number(present)),
            "batteryHealth", {QString::fromLatin1(expected)});
    };
    health("80 %", 800, "batteryHealth | 80 % | supported");
    health("79 %", 790, "batteryHealth | 79 % | warning");
    health("60 %", 600, "batteryHealth | 60 % | warning");
    health("59 %", 590, "batteryHealth | 59 % | unsupported");
    health("a broken gauge", 1201, "batteryHealth | Not readable | info");
    row("capacity beyond the design", mac(R"("DesignCapacity": 5103, "AppleRawMaxCapacity": 5170)"),
        "battery(Health|Capacity)",
        {u"batteryHealth | 100 % | supported"_s, u"batteryCapacity | 5,170 of 5,103 mAh | info"_s});

    const auto cycles = [&row](const char *members, const char *expected) {
        row(members, mac(members), "cycleCount", {QString::fromLatin1(expected)});
    };
    cycles(R"("CycleCount": 999, "DesignCycleCount9C": 1000)", "cycleCount | 999 of 1,000 | supported");
    cycles(R"("CycleCount": 1000, "DesignCycleCount9C": 1000)", "cycleCount | 1,000 of 1,000 | warning");
    cycles(R"("CycleCount": 0, "DesignCycleCount70": 13)", "cycleCount | 0 | info");
    cycles(R"("BatteryData": {"CycleCount": 12})", "cycleCount | 12 | info");
    cycles(R"("DesignCycleCount9C": 1000)", "cycleCount | Not readable | info");

    const auto temperature = [&row](const char *name, const char *tenths, const QStringList &expected) {
        row(name,
            onLinux(QByteArray(R"("powerSupplies": {"B": {"POWER_SUPPLY_TYPE": "Battery", )") +
                    R"("POWER_SUPPLY_TEMP": ")" + tenths + R"("}})"),
            "batteryTemperature", expected);
    };
    temperature("45 °C", "450", {u"batteryTemperature | 45.0 °C | info"_s});
    temperature("above 45 °C", "451", {u"batteryTemperature | 45.1 °C | warning"_s});
    temperature("below 0 °C", "-35", {u"batteryTemperature | −3.5 °C | info"_s});
    temperature("80.1 °C", "801", {});

    row("permanent failure", mac(R"("PermanentFailureStatus": 4)", R"("BatteryHealth": "Good")"),
        "batteryCondition", {u"batteryCondition | Permanent failure | warning"_s});
    row("word of the system's", mac("", R"("BatteryHealth": "Odd")"), "batteryCondition",
        {u"batteryCondition | Odd | info"_s});
    row("a level that cannot be", mac("", R"("Current Capacity": 101)"), "charge",
        {u"charge | Not readable | info"_s});
    row("held on purpose",
        mac("", R"("Current Capacity": 80, "Is Charging": false, "Power Source State": "AC Power")"),
        "charg|time", {u"charge | 80 % | info"_s, u"charging | Connected, not charging | info"_s});
    row("being estimated",
        mac("", R"("Is Charging": true, "Power Source State": "AC Power", "Time to Full Charge": -1)"),
        "charging|time", {u"charging | Charging | info"_s, u"timeRemaining | Being estimated | info"_s});

    const auto adapter = [&row](const char *members, const QStringList &expected) {
        row(members, QByteArray(R"({"powerSettings": {"externalAdapter": {)") + members + "}}}", "adapter",
            expected);
    };
    adapter(R"("FamilyCode": 0)", {});
    adapter(R"("Watts": 70, "Name": "70W USB-C Power Adapter")",
            {u"adapter | 70W USB-C Power Adapter | info"_s});
    adapter(R"("Watts": 70, "Name": "")", {u"adapter | 70 W | info"_s});
    adapter(R"("Watts": 0, "Name": 5)", {});

    row("Linux battery by energy", recordingText(u"linux-laptop"_s), "(batteryC|time|cycle|chargeL|powerP)",
        {u"cycleCount | 112 | info"_s, u"batteryCapacity | 52.1 of 57 Wh | info"_s,
         u"timeRemaining | 4h 50m | info"_s, u"chargeLimit | 80 % | info"_s,
         u"powerProfile | Balanced | info"_s});
    row("no limit to charging", onLinux(R"("powerSupplies": {"B": {"POWER_SUPPLY_TYPE": "Battery",
                   "POWER_SUPPLY_CHARGE_CONTROL_END_THRESHOLD": "100"}})"),
        "chargeLimit", {u"chargeLimit | None | info"_s});
}

void PowerSectionTest::answers()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, keys);
    const QRegularExpression wanted(u"^(%1)"_s.arg(keys));
    QTEST(rowsOf(*changedMachine(changes)).filter(wanted), "expected");
}

/// What an ageing battery shows is a change of the machine; what it shows while it is used is not.
void PowerSectionTest::volatileRows()
{
    QStringList lasting;
    for (const auto *name : {"macbook-pro-m3-max", "linux-laptop"}) {
        const auto machine = machineFrom(recordingText(QString::fromLatin1(name)));
        for (const auto &item : DeviceProbe::powerSection(*machine, language::Formats(u"en"_s)).items) {
            if (!item.isVolatile)
                lasting += *item.key;
        }
    }
    QCOMPARE(lasting, QStringList({u"battery"_s, u"batteryHealth"_s, u"batteryCondition"_s, u"cycleCount"_s,
                                   u"battery"_s, u"batteryHealth"_s, u"cycleCount"_s, u"chargeLimit"_s}));
}

void PowerSectionTest::otherLanguage()
{
    const auto rows = rowsOf(*changedMachine(recordingText(u"linux-laptop"_s)), u"de"_s);
    QVERIFY(rows.contains(u"batteryCapacity | 52,1 of 57 Wh | info"_s));
}

/// Planted serial numbers, makers and models reach no row and no recording; the rest comes back out of one.
void PowerSectionTest::identifiers()
{
    const auto machine = changedMachine(R"({
        "powerSources": [{"Type": "InternalBattery", "Hardware Serial Number": "PLANTED", "Current Capacity": 50}],
        "powerSettings": {"providingSource": "AC Power", "lowPowerModeEnabled": true, "platformProfile": "quiet",
            "externalAdapter": {"Watts": 70, "SerialString": "PLANTED", "Manufacturer": "PLANTED"}},
        "powerSupplies": {"BAT0": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_CAPACITY": "50",
            "POWER_SUPPLY_SERIAL_NUMBER": "PLANTED", "POWER_SUPPLY_MODEL_NAME": "PLANTED",
            "POWER_SUPPLY_MANUFACTURER": "PLANTED"}},
        "registry": {"AppleSmartBattery": {"Serial": "PLANTED", "BatterySerialNumber": "PLANTED",
            "ManufacturerData": "PLANTED", "BatteryData": {"MfgData": "PLANTED", "CycleCount": 3}}}})");
    QCOMPARE(machine->power().powerSupplies()->at("BAT0").size(), 2);
    const auto recording = QByteArray::fromStdString(recordMachine(*machine, platform::RecordedNames::Keep));
    QVERIFY(!recording.contains("PLANTED"));
    const auto again = machineFrom(recording);
    QCOMPARE(rowsOf(*again), rowsOf(*machine));
    QCOMPARE(again->power().settings().lowPowerModeEnabled, true);
    QVERIFY(!rowsOf(*machine).join(u'\n').contains(u"PLANTED"_s));
}

QTEST_GUILESS_MAIN(PowerSectionTest)
#include "PowerSectionTest.moc"
