// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QStringList>
#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

class LinuxPowerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void supplies();
    void nothing();
};

/// The properties of the machine's own supplies, and none by which they could be recognised.
void LinuxPowerTest::supplies()
{
    const FileTree files(R"(/sys/class/power_supply/BAT0/uevent:
DEVTYPE=power_supply
POWER_SUPPLY_NAME=BAT0
POWER_SUPPLY_TYPE=Battery
POWER_SUPPLY_STATUS=Not charging
POWER_SUPPLY_MODEL_NAME=planted
POWER_SUPPLY_MANUFACTURER=planted
POWER_SUPPLY_SERIAL_NUMBER=planted
/sys/class/power_supply/BAT0/charge_control_end_threshold: 80
/sys/class/power_supply/BAT1/uevent:
POWER_SUPPLY_TYPE=Battery
POWER_SUPPLY_CHARGE_CONTROL_END_THRESHOLD=90
/sys/class/power_supply/BAT1/charge_control_end_threshold: 70
/sys/class/power_supply/AC/uevent: POWER_SUPPLY_ONLINE=1
/sys/class/power_supply/AC/type: Mains
/sys/class/power_supply/hid-00:11:22:33:44:55-battery/uevent:
POWER_SUPPLY_TYPE=Battery
POWER_SUPPLY_SCOPE=Device
/sys/firmware/acpi/platform_profile: low-power
)");
    const auto machine = linuxMachine(files.root());
    QStringList lines;
    const auto supplies = machine->power().powerSupplies();
    QVERIFY(supplies);
    for (const auto &[name, supply] : *supplies) {
        for (const auto &[key, property] : supply)
            lines += QString::fromStdString(name + ' ' + key.substr(13) + '=' +
                                            std::get<std::string>(property.value));
    }
    QCOMPARE(lines,
             QStringList({u"AC ONLINE=1"_s, u"AC TYPE=Mains"_s, u"BAT0 CHARGE_CONTROL_END_THRESHOLD=80"_s,
                          u"BAT0 NAME=BAT0"_s, u"BAT0 STATUS=Not charging"_s, u"BAT0 TYPE=Battery"_s,
                          u"BAT1 CHARGE_CONTROL_END_THRESHOLD=90"_s, u"BAT1 TYPE=Battery"_s}));
    QVERIFY(machine->power().settings() == PowerSettings{.platformProfile = "low-power"});
}

/// A folder without supplies is a desktop; no folder is a question without an answer.
void LinuxPowerTest::nothing()
{
    const FileTree desktop("/sys/class/power_supply/hid-battery/uevent: POWER_SUPPLY_SCOPE=Device\n");
    QVERIFY(linuxMachine(desktop.root())->power().powerSupplies()->empty());
    const auto machine = linuxMachine("/nonexistent");
    QVERIFY(!machine->power().powerSupplies());
    QVERIFY(machine->power().settings() == PowerSettings());
}

QTEST_GUILESS_MAIN(LinuxPowerTest)
#include "LinuxPowerTest.moc"
