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

CapabilitySection sectionOf(const platform::Machine &machine)
{
    return DeviceProbe::networkSection(machine, language::Formats(u"en"_s), machine.network().currentPath());
}

QByteArray entry(const char *name, const char *family, const char *up = "true")
{
    return QByteArray(R"({"name": ")") + name + R"(", "family": ")" + family + R"(", "up": )" + up +
           R"(, "address": "192.0.2.1"})";
}

} // namespace

class NetworkSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void labels();
    void recordings();
};

void NetworkSectionTest::answers_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QStringList>("present"); // rows that the section has
    QTest::addColumn<QStringList>("absent");  // keys that it has not
    const auto row = [](const char *name, const QByteArray &changes, const QStringList &present,
                        const QStringList &absent = {}) {
        QTest::newRow(name) << changes << present << absent;
    };
    const auto path = [&row](const char *name, const char *members, const QStringList &present,
                             const QStringList &absent = {}) {
        row(name, QByteArray(R"({"networkPath": {"status": "satisfied", )") + members + "}}", present,
            absent);
    };
    path("Wi-Fi before the tunnel over it", R"("interfaceTypes": ["other", "wifi"])",
         {u"connection | Wi-Fi | supported"_s, u"metered | No | info"_s, u"lowDataMode | Off | info"_s,
          u"ipv4 | Not offered by this network | info"_s, u"dns | Not available | warning"_s});
    path("cable before modem", R"("interfaceTypes": ["cellular", "wired"], "isExpensive": true)",
         {u"connection | Ethernet | supported"_s, u"metered | Yes | info"_s});
    path("modem", R"("interfaceTypes": ["cellular"], "supportsIPv6": true, "isConstrained": true)",
         {u"connection | Cellular | supported"_s, u"ipv6 | Available | supported"_s,
          u"lowDataMode | On | info"_s});
    path("a way that is not named", R"("interfaceTypes": ["loopback"])",
         {u"connection | Other | supported"_s});
    for (const char *status : {"unsatisfied", "satisfiable"}) {
        row(status, QByteArray(R"({"networkPath": {"supportsDNS": true, "status": ")") + status + "\"}}",
            {u"connection | Not connected | warning"_s}, {u"dns"_s, u"ipv4"_s, u"metered"_s});
    }
    row("a path that is none", R"({"networkPath": {"status": "invalid"}})",
        {u"connection | Not readable | info"_s}, {u"dns"_s});
    row("Linux", onLinux(R"("networkPath": {"status": "satisfied", "supportsDNS": true})"),
        {u"connection | Other | supported"_s, u"dns | Available | supported"_s},
        {u"metered"_s, u"lowDataMode"_s});

    row("self-assigned address", R"({"interfaces": [
            {"name": "en0", "family": "ipv4", "up": true, "address": "169.254.8.9"},
            {"name": "en1", "family": "ipv4", "up": true, "address": "169.25.4.1"}]})",
        {u"address.1 | 169.254.8.9 (self-assigned) | warning"_s, u"address.2 | 169.25.4.1 | info"_s});
    QByteArray many = entry("en0", "ipv4");
    for (int i = 1; i < 20; ++i)
        many += ',' + entry("en0", "ipv4");
    row("too many addresses", "{\"interfaces\": [" + many + "]}", {u"address.16 | 192.0.2.1 | info"_s},
        {u"address.17"_s});

    const auto wifi = [&row](const char *name, const char *members, const QStringList &present,
                             const QStringList &absent = {}) {
        row(name, QByteArray(R"({"wifi": {)") + members + "}}", present, absent);
    };
    wifi("off, nothing connected",
         R"("powerOn": false, "activePHYMode": 0, "rssiValue": 0, "transmitRate": 0, "channelBand": 0)",
         {u"wifi | Off | info"_s}, {u"wifiStandard"_s, u"wifiBand"_s, u"wifiSignal"_s, u"wifiRate"_s});
    wifi("6E", R"("powerOn": true, "activePHYMode": 6, "channelBand": 3, "transmitRate": 1200.96)",
         {u"wifi | On | supported"_s, u"wifiStandard | Wi-Fi 6E (802.11ax) | info"_s,
          u"wifiBand | 6 GHz | info"_s, u"wifiRate | 1,201 Mbit/s | info"_s});
    wifi("6", R"("activePHYMode": 6, "channelBand": 1)",
         {u"wifi | Not readable | info"_s, u"wifiStandard | Wi-Fi 6 (802.11ax) | info"_s,
          u"wifiBand | 2.4 GHz | info"_s});
    wifi("later than this program", R"("activePHYMode": 8, "channelBand": 4)",
         {u"wifiStandard | Not readable | info"_s}, {u"wifiBand"_s});
    wifi("signal -67", R"("rssiValue": -67)", {u"wifiSignal | −67 dBm (good) | supported"_s});
    wifi("signal -68", R"("rssiValue": -68)", {u"wifiSignal | −68 dBm (fair) | info"_s});
    wifi("signal -75", R"("rssiValue": -75)", {u"wifiSignal | −75 dBm (fair) | info"_s});
    wifi("signal -76", R"("rssiValue": -76)", {u"wifiSignal | −76 dBm (weak) | warning"_s});
    wifi("least signal", R"("rssiValue": -2147483648)",
         {u"wifiSignal | −2,147,483,648 dBm (weak) | warning"_s});
    // In a merge null removes the member: here it has to stand in the recording.
    row("no Wi-Fi", "no wifi", {u"wifi | None | info"_s}, {u"wifiSignal"_s});

    const auto tunnel = [&row](const char *name, const QByteArray &one, bool onMac, bool isActive) {
        const QByteArray member = "\"interfaces\": [" + entry("lo0", "ipv4") + ", " + one + ']';
        row(name, onMac ? '{' + member + '}' : onLinux(member),
            {isActive ? u"vpn | Active | info"_s : u"vpn | None detected | info"_s});
    };
    tunnel("utun", entry("utun4", "ipv4"), true, true);
    tunnel("utun of the system", entry("utun0", "ipv6"), true, false);
    tunnel("utun that is down", entry("utun4", "ipv4", "false"), true, false);
    tunnel("ipsec", entry("ipsec0", "ipv4"), true, true);
    tunnel("wg is no tunnel's name there", entry("wg0", "ipv4"), true, false);
    tunnel("wg over IPv6", entry("wg0", "ipv6"), false, true);
    tunnel("tun without an address", entry("tun0", "link"), false, false);
    tunnel("utun is none on Linux", entry("utun0", "ipv4"), false, false);

    row("cables",
        onLinux(
            R"("ethernetLinks": [{"name": "a", "speed": 2500, "duplex": "full"}, {"name": "b", "speed": -1},
            {"name": "c"}, {"name": "d", "speed": 100, "duplex": "half"}, {"name": "e", "speed": 10, "duplex": "unknown"}])"),
        {u"ethernetSpeed.1 | 2,500 Mbit/s, full duplex | info"_s,
         u"ethernetSpeed.2 | 100 Mbit/s, half duplex | warning"_s, u"ethernetSpeed.3 | 10 Mbit/s | info"_s},
        {u"ethernetSpeed.4"_s});
    row("Bluetooth", onLinux(R"("bluetooth": {"present": true, "blocked": false})"),
        {u"bluetooth | On | supported"_s});
    row("Bluetooth off", onLinux(R"("bluetooth": {"present": true, "blocked": true})"),
        {u"bluetooth | Off | info"_s});
    row("no Bluetooth", onLinux(R"("bluetooth": {"present": false, "blocked": true})"),
        {u"bluetooth | None | info"_s});
    row("what a Mac is not asked",
        R"({"bluetooth": {"present": true}, "ethernetLinks": [{"name": "a", "speed": 10}]})", {},
        {u"bluetooth"_s, u"ethernetSpeed.1"_s});
}

void NetworkSectionTest::answers()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QStringList, present);
    QFETCH(const QStringList, absent);
    const auto recording = changes == "no wifi"
                               ? changedRecording(R"({"wifi": 0})").replace("\"wifi\": 0", "\"wifi\": null")
                               : changedRecording(changes);
    auto expected = present;
    for (const auto &key : absent)
        expected += key + u" absent"_s;
    QVERIFY(hasRows(sectionOf(*machineFrom(recording)), expected));
}

void NetworkSectionTest::labels()
{
    const auto labels = [](const QByteArray &links) {
        QStringList found;
        const auto machine = changedMachine(onLinux("\"ethernetLinks\": [" + links + ']'));
        for (const auto &item : sectionOf(*machine).items) {
            if (item.key->startsWith(u"ethernetSpeed"))
                found += item.label + (item.isVolatile ? u" (volatile)"_s : QString());
        }
        return found;
    };
    const QByteArray link = R"({"name": "a", "speed": 1000})";
    QCOMPARE(labels(link + R"(, {"name": "b"})"), QStringList(u"Ethernet speed (volatile)"_s));
    QCOMPARE(labels(link + ',' + link),
             QStringList({u"Ethernet speed 1 (volatile)"_s, u"Ethernet speed 2 (volatile)"_s}));
}

/// What is recorded answers as its machine did; without names, all but the addresses.
void NetworkSectionTest::recordings()
{
    using platform::RecordedNames;
    const QByteArrayList recordings = {
        changedRecording(R"({"wifi": 0})").replace("\"wifi\": 0", "\"wifi\": null"),
        changedRecording(onLinux(R"("wifi": {"ssid": "Lovelace's network", "bssid": "02:00:5e:10:00:01"},
            "bluetooth": {"present": false}, "interfaces": [{"name": "wg0", "family": "ipv4", "up": true, "address": "198.51.100.9"}],
            "ethernetLinks": [{"name": "eth0", "speed": 10, "duplex": "half", "address": "02:00:5e:10:00:02"}])"))};
    for (const auto &recording : recordings) {
        const auto machine = machineFrom(recording);
        const auto all = rows(sectionOf(*machine));
        QVERIFY(sameLines(rows(sectionOf(*recordedAgain(*machine))), all));
        const auto text = QByteArray::fromStdString(recordMachine(*machine, RecordedNames::LeaveOut));
        QVERIFY(sameLines(rows(sectionOf(*machineFrom(text))),
                          all.filter(QRegularExpression(u"^(?!address)"_s))));
        for (const char *secret : {"Lovelace", "5e:10", "198.51.100.9", "ssid", "2001:db8"})
            QVERIFY2(!text.contains(secret), secret);
    }
}

QTEST_GUILESS_MAIN(NetworkSectionTest)
#include "NetworkSectionTest.moc"
