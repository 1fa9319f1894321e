// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "support/Recordings.h"
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

private:
    /// The command on that machine.
    QString battery(const QByteArray &recording, const QString &options = {},
                    const Terminal &terminal = {}) const
    {
        QFile file(m_folder.filePath(u"machine.json"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(recording) != recording.size() || !file.flush())
            qFatal("%s", qPrintable(file.errorString()));
        const auto outcome = runWith(u"battery --machine %1 %2"_s.arg(file.fileName(), options), terminal);
        return outcome.status == 0 && outcome.err.isEmpty() ? outcome.out : outcome.err;
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
    QTest::addColumn<QString>("expected"); // * stands for any lines
    QTest::newRow("two figures") << recordingText(u"macbook-pro-m2-rosetta"_s) << uR"(
This battery is in good condition.
It holds almost as much charge as when it was new.

Battery health  █████████████████████░░░  88 % of design capacity
macOS reports 90 %
macOS smooths its figure and keeps a reserve, so the two can differ by a few points.

  ✓ Battery health       88 %                Normal
  ✓ Battery condition    Normal
  ✓ Cycle count          319 of 1,000        Supported
  · Battery capacity     4,490 of 5,103 mAh  Info
  · Battery temperature  41.0 °C             Normal
*)"_s;
    QTest::newRow("a cause, and nothing of the health") << changedRecording(R"({
        "powerSources": [{"Type": "InternalBattery", "BatteryHealth": "Poor"}],
        "powerReport": {"sppower_battery_health_maximum_capacity": "71%"}})")
                                                        << uR"(
This battery needs attention.
Service recommended

macOS reports 71 %

  · Battery health     –                    Not reported
  ! Battery condition  Service recommended
*)"_s;
    QTest::newRow("several") << twoBatteries() << uR"(
BAT0
This battery is in good condition.
It holds almost as much charge as when it was new.
*
BAT1
This battery is worn.
Consider having it replaced.

Battery health  ██████░░░░░░░░░░░░░░░░░░  25 % of design capacity

  ✗ Battery health     25 %                Worn
  · Battery condition  Over�heat
*)"_s;
    QTest::newRow("none") << changedRecording(R"({"powerSources": []})") << uR"(
This Mac has no battery
Battery health is shown on portable Macs. Everything else in Quillmark works as usual.
)"_s;
    QTest::newRow("none on Linux") << changedRecording(onLinux(R"("powerSupplies": {})")) << uR"(
This computer has no battery
Battery health is shown on portable computers. Everything else in Quillmark works as usual.
)"_s;
}

void BatteryCommandTest::text()
{
    QFETCH(const QByteArray, recording);
    QFETCH(const QString, expected);
    const auto actual = battery(recording).replace(QChar::Nbsp, u' ');
    const auto pattern = QRegularExpression::escape(expected.mid(1)).replace(u"\\*"_s, u".*"_s);
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern),
                                   QRegularExpression::DotMatchesEverythingOption);
    QVERIFY2(whole.match(actual).hasMatch(), qPrintable(actual));
}

void BatteryCommandTest::narrowTerminal()
{
    const auto recording = recordingText(u"macbook-pro-m2-rosetta"_s);
    const auto plain = battery(recording, {}, {.columns = 40});
    for (const auto &line : plain.split(u'\n'))
        QVERIFY2(line.size() <= 40, qPrintable(line));
    auto colored = battery(recording, {}, {.columns = 40, .color = true});
    QVERIFY(colored.contains(u"\x1b[32m"_s));
    QCOMPARE(colored.remove(QRegularExpression(u"\x1b\\[[0-9;]*m"_s)), plain);
}

void BatteryCommandTest::json()
{
    const auto read = [this](const QByteArray &recording) {
        return QJsonDocument::fromJson(battery(recording, u"--json"_s).toUtf8()).object();
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
    QCOMPARE(read(twoBatteries()), expected.object());

    // What only a Mac tells.
    const auto mac = read(recordingText(u"macbook-pro-m2-rosetta"_s))[u"batteries"_s][0].toObject();
    QCOMPARE(mac[u"reportedMaximumPercent"_s], 90);
    QCOMPARE(mac[u"temperatureCelsius"_s], 41);
    QCOMPARE(mac[u"voltageMillivolts"_s], 11902);
    QCOMPARE(mac[u"hasRatedCycles"_s], false);
    QCOMPARE(mac[u"minutesToEmpty"_s], 68);
    QCOMPARE(mac[u"failureBits"_s], 0);

    const QJsonObject none = {
        {u"schema"_s, u"battery-v1"_s}, {u"hasBattery"_s, false}, {u"batteries"_s, QJsonArray()}};
    QCOMPARE(read(changedRecording()), none);
}

QTEST_GUILESS_MAIN(BatteryCommandTest)
#include "BatteryCommandTest.moc"
