// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QStringList>
#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

QString word(const std::optional<bool> &flag)
{
    return flag ? (*flag ? u"on"_s : u"off"_s) : u"not told"_s;
}

QString wifiText(const Network &network)
{
    const auto wifi = network.wifi();
    if (!wifi)
        return u"not read"_s;
    const QString signal = wifi->rssi ? u" %1 dBm"_s.arg(*wifi->rssi) : QString();
    return wifi->isPresent ? word(wifi->powerOn) + signal : u"none"_s + signal;
}

QString bluetoothText(const Network &network)
{
    const auto bluetooth = network.bluetooth();
    if (!bluetooth)
        return u"not read"_s;
    return bluetooth->isPresent ? word(!bluetooth->isBlocked) : u"none"_s;
}

QByteArray radio(const char *number, const char *type, const char *soft, const char *hard)
{
    const QByteArray folder = QByteArray("/sys/class/rfkill/rfkill") + number + '/';
    return folder + "type: " + type + '\n' + folder + "soft: " + soft + '\n' + folder + "hard: " + hard +
           '\n';
}

constexpr const char *wirelessTitle =
    "/proc/net/wireless:\n"
    "Inter-| sta-|   Quality        |   Discarded packets               | Missed | WE\n"
    " face | tus | link level noise |  nwid  crypt   frag  retry   misc | beacon | 22\n";

} // namespace

class LinuxNetworkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void radios_data();
    void radios();
    void ethernetLinks();
};

void LinuxNetworkTest::radios_data()
{
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QString>("wifi");
    QTest::addColumn<QString>("bluetooth");
    const auto row = [](const char *name, const QByteArray &tree, const char *wifi, const char *bluetooth) {
        QTest::newRow(name) << tree << QString::fromUtf8(wifi) << QString::fromUtf8(bluetooth);
    };
    const QByteArray cable = "/sys/class/net/eth0/type: 1\n";
    const QByteArray wlan = cable + "/sys/class/net/wlan0/phy80211/index: 0\n";
    const QByteArray both = wlan + "/sys/class/bluetooth/hci0/uevent: DEVTYPE=host\n";
    row("no /sys", "/proc/net/wireless: \n", "not read", "not read");
    row("a cable alone", cable, "none", "none");
    row("no switches", both, "on", "on");
    row("switched on", both + radio("0", "wlan", "0", "0") + radio("1", "bluetooth", "0", "0"), "on", "on");
    row("soft, hard", both + radio("0", "wlan", "1", "0") + radio("1", "bluetooth", "0", "1"), "off", "off");
    row("the other's switch", both + radio("0", "wlan", "1", "0") + radio("1", "wwan", "1", "0"), "off",
        "on");
    row("one of two adapters", both + radio("0", "wlan", "1", "0") + radio("1", "wlan", "0", "0"), "on",
        "on");
    row("a switch that does not tell",
        both + "/sys/class/rfkill/rfkill0/type: wlan\n/sys/class/rfkill/rfkill1/type: bluetooth\n",
        "not told", "not read");
    row("taken off the bus", cable + radio("0", "wlan", "0", "1") + radio("1", "bluetooth", "1", "0"), "off",
        "off");
    row("a key for nothing", cable + radio("0", "wlan", "0", "0") + radio("1", "bluetooth", "0", "0"), "none",
        "none");
    row("signals",
        wlan + wirelessTitle +
            " wlan1: 0000    0  -256  -256        0      0      0      0      0        0\n"
            " wlan0: 0000   54.  -56.  -256        0      0      0      0      0        0\n"
            "wlan22: 0000   54.  -70.  -256        0      0      0      0      0        0\n",
        "on -56 dBm", "none");
    row("a unit of the driver's own",
        wlan + wirelessTitle + " wlan0: 0000   54.  87.  0.   0      0      0      0      0        0\n", "on",
        "none");
    row("cut short", wlan + wirelessTitle + " wlan0: 0000   54.  -\n", "on", "none");
    row("no Wi-Fi, but a table", cable + wirelessTitle + " eth0: 0000   54.  -56.  -256  0 0 0 0 0 0\n",
        "none", "none");
}

void LinuxNetworkTest::radios()
{
    QFETCH(const QByteArray, tree);
    const FileTree files(tree);
    const auto machine = linuxMachine(files.root());
    QTEST(wifiText(machine->network()), "wifi");
    QTEST(bluetoothText(machine->network()), "bluetooth");
}

void LinuxNetworkTest::ethernetLinks()
{
    QByteArray tree = R"(/sys/class/net/enp3s0/speed: 1000
/sys/class/net/enp3s0/duplex: full
/sys/class/net/ens3/speed: -1
/sys/class/net/unplugged/speed: 1000
/sys/class/net/wlp2s0/uevent: DEVTYPE=wlan
/sys/class/net/wwp1s0/uevent: DEVTYPE=wwan
/sys/class/net/ib0/type: 32
/sys/class/net/bonding_masters: 
)";
    for (const char *name : {"enp3s0", "ens3", "enx02005e100001", "enx02005e10000z", "unplugged", "veth1",
                             "wlp2s0", "wwp1s0", "ib0"}) {
        const QByteArray folder = QByteArray("/sys/class/net/") + name + '/';
        tree += folder + "carrier: " + (name == QByteArray("unplugged") ? "0" : "1") + '\n';
        if (name != QByteArray("ib0"))
            tree += folder + "type: 1\n";
        if (name != QByteArray("veth1"))
            tree += folder + "device/vendor: 0x8086\n";
    }
    const FileTree files(tree);
    QCOMPARE(linuxMachine(files.root())->network().ethernetLinks(),
             std::vector<LinkReading>({{"enp3s0", 1000, "full"},
                                       {"ens3", -1, std::nullopt},
                                       {"enx", std::nullopt, std::nullopt},
                                       {"enx02005e10000z", std::nullopt, std::nullopt}}));
}

QTEST_APPLESS_MAIN(LinuxNetworkTest)
#include "LinuxNetworkTest.moc"
