// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "support/Recordings.h"
#include "support/Rows.h"
#include "support/runWith.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace quillmark::support;
using namespace Qt::StringLiterals;

class BatteryCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void narrowTerminal();
    void json();
    void noBattery();

private:
    /// The command on that machine.
    Outcome battery(const QByteArray &recording, const QString &options = {},
                    const Terminal &terminal = {}) const
    {
        QFile file(m_folder.filePath(u"machine.json"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(recording) != recording.size())
            qFatal("%s", qPrintable(file.errorString()));
        file.close();
        return runWith(u"battery --machine %1 %2"_s.arg(file.fileName(), options), terminal);
    }

    QTemporaryDir m_folder;
};

namespace {

/// Two batteries of Linux, one of which is worn.
QByteArray twoBatteries()
{
    return changedRecording(onLinux(R"("powerSupplies": {
        "AC": {"POWER_SUPPLY_TYPE": "Mains", "POWER_SUPPLY_ONLINE": "1"},
        "BAT0": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_STATUS": "Full", "POWER_SUPPLY_CAPACITY": "100",
                 "POWER_SUPPLY_ENERGY_FULL_DESIGN": "57000000", "POWER_SUPPLY_ENERGY_FULL": "57000000"},
        "BAT1": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_STATUS": "Charging", "POWER_SUPPLY_CAPACITY": "9",
                 "POWER_SUPPLY_CHARGE_FULL_DESIGN": "4000000", "POWER_SUPPLY_CHARGE_FULL": "1000000",
                 "POWER_SUPPLY_CHARGE_NOW": "100000", "POWER_SUPPLY_CURRENT_NOW": "900000",
                 "POWER_SUPPLY_HEALTH": "Over\u001bheat", "POWER_SUPPLY_CYCLE_COUNT": "812"}})"));
}

} // namespace

void BatteryCommandTest::text_data()
{
    QTest::addColumn<QByteArray>("recording");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("two figures")
        << recordingText(u"macbook-pro-m2-rosetta"_s)
        << QStringList{
               u"This battery is in good condition. It holds almost as much charge as when it was new."_s,
               u""_s,
               u"Battery health  █████████████████████░░░  88 % of design capacity"_s,
               u"macOS reports 90 %"_s,
               u"macOS smooths its figure and keeps a reserve, so the two can differ by a few points."_s,
               u""_s,
               u"  ✓ Battery health       88 %                Normal"_s,
               u"  ✓ Battery condition    Normal"_s,
               u"  ✓ Cycle count          319 of 1,000        Supported"_s,
               u"  · Battery capacity     4,490 of 5,103 mAh  Info"_s,
               u"  · Battery temperature  41.0 °C             Normal"_s,
               u"  · Charge               73 %                Info"_s,
               u"  · Charging             On battery          Info"_s,
               u"  · Time remaining       1h 8m               Info"_s,
               u""_s};
    QTest::newRow("a cause, and nothing of the health")
        << changedRecording(R"({
        "powerSources": [{"Type": "InternalBattery", "BatteryHealth": "Poor"}],
        "powerReport": {"sppower_battery_health_maximum_capacity": "71%"}})")
        << QStringList{u"This battery needs attention."_s,
                       u"Service recommended"_s,
                       u""_s,
                       u"macOS reports 71 %"_s,
                       u""_s,
                       u"  · Battery health     Not readable         Info"_s,
                       u"  ! Battery condition  Service recommended"_s,
                       u"  · Cycle count        Not readable         Info"_s,
                       u"  · Charge             Not readable         Info"_s,
                       u"  · Charging           Not readable         Info"_s,
                       u""_s};
    QTest::newRow("several")
        << twoBatteries()
        << QStringList{
               u"BAT0"_s,
               u"This battery is in good condition. It holds almost as much charge as when it was new."_s,
               u""_s,
               u"Battery health  ████████████████████████  100 % of design capacity"_s,
               u""_s,
               u"  ✓ Battery health    100 %         Normal"_s,
               u"  · Cycle count       Not readable  Info"_s,
               u"  · Battery capacity  57 of 57 Wh   Info"_s,
               u"  · Charge            100 %         Info"_s,
               u"  · Charging          Full          Info"_s,
               u""_s,
               u"BAT1"_s,
               u"This battery is worn. Consider having it replaced."_s,
               u""_s,
               u"Battery health  ██████░░░░░░░░░░░░░░░░░░  25 % of design capacity"_s,
               u""_s,
               u"  ✗ Battery health     25 %                Worn"_s,
               u"  · Battery condition  Over\uFFFDheat"_s,
               u"  · Cycle count        812                 Info"_s,
               u"  · Battery capacity   1,000 of 4,000 mAh  Info"_s,
               u"  · Charge             9 %                 Info"_s,
               u"  · Charging           Charging            Info"_s,
               u"  · Time remaining     1h until full       Info"_s,
               u""_s};
}

void BatteryCommandTest::text()
{
    QFETCH(const QByteArray, recording);
    QFETCH(const QStringList, expected);
    auto outcome = battery(recording);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.err, QString());
    QVERIFY(sameLines(outcome.out.replace(QChar::Nbsp, u' ').split(u'\n'), expected));
}

void BatteryCommandTest::narrowTerminal()
{
    const auto recording = recordingText(u"macbook-pro-m2-rosetta"_s);
    const auto plain = battery(recording, {}, {.columns = 40});
    for (const auto &line : plain.out.split(u'\n'))
        QVERIFY2(line.size() <= 40, qPrintable(line));
    auto colored = battery(recording, {}, {.columns = 40, .color = true}).out;
    QVERIFY(colored.contains(u"\x1b[32m"_s));
    QCOMPARE(colored.remove(QRegularExpression(u"\x1b\\[[0-9;]*m"_s)), plain.out);
    QCOMPARE(battery(recording, u"--no-color"_s, {.columns = 40, .color = true}).out, plain.out);
}

void BatteryCommandTest::json()
{
    const auto read = [this](const QByteArray &recording, const QString &options) {
        return QJsonDocument::fromJson(battery(recording, options).out.toUtf8()).object();
    };
    const auto expected =
        QJsonDocument::fromJson(R"({"schema": "battery-v1", "hasBattery": true, "batteries": [
        {"name": "BAT0", "overall": "supported", "cause": "none", "health": "normal", "healthPercent": 100,
         "condition": "notReported", "warmth": "notReported", "capacityUnit": "mWh", "designCapacity": 57000,
         "presentCapacity": 57000, "level": 1, "isCharging": false, "onAC": true, "chargeState": "full"},
        {"name": "BAT1", "overall": "unsupported", "cause": "health", "health": "worn", "healthPercent": 25,
         "condition": "other", "warmth": "notReported", "capacityUnit": "mAh", "designCapacity": 4000,
         "presentCapacity": 1000, "cycleCount": 812, "currentMilliamperes": 900, "level": 0.09, "isCharging": true,
         "onAC": true, "chargeState": "charging", "minutesToFull": 60, "systemHealth": "Over\u001bheat"}]})");
    QCOMPARE(read(twoBatteries(), u"--json"_s), expected.object());

    const auto mac =
        read(recordingText(u"macbook-pro-m2-rosetta"_s), u"--json"_s)[u"batteries"_s][0].toObject();
    const QJsonObject figures = {{u"reportedMaximumPercent"_s, 90}, {u"healthPercent"_s, 88},
                                 {u"temperatureCelsius"_s, 41},     {u"voltageMillivolts"_s, 11902},
                                 {u"currentMilliamperes"_s, -2878}, {u"hasRatedCycles"_s, false},
                                 {u"minutesToEmpty"_s, 68},         {u"failureBits"_s, 0}};
    for (auto figure = figures.begin(); figure != figures.end(); ++figure)
        QCOMPARE(mac[figure.key()], *figure);
}

/// A word for Macs, another for all others; nothing is wrong with either.
void BatteryCommandTest::noBattery()
{
    const auto mac = battery(changedRecording(R"({"powerSources": []})"));
    QCOMPARE(mac.status, 0);
    QCOMPARE(
        mac.out,
        u"This Mac has no battery\nBattery health is shown on portable Macs. Everything else in Quillmark "
        "works as usual.\n"_s);
    QVERIFY(battery(changedRecording(onLinux(R"("powerSupplies": {})")))
                .out.startsWith(
                    u"This computer has no battery\nBattery health is shown on portable computers. "_s));
    const auto json = battery(changedRecording(), u"--json"_s);
    QCOMPARE(QJsonDocument::fromJson(json.out.toUtf8()).object(),
             (QJsonObject{
                 {u"schema"_s, u"battery-v1"_s}, {u"hasBattery"_s, false}, {u"batteries"_s, QJsonArray()}}));
}

QTEST_GUILESS_MAIN(BatteryCommandTest)
#include "BatteryCommandTest.moc"
