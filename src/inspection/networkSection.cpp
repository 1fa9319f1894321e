// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"
#include "inspection/wifiItems.h"

#include <algorithm>
#include <initializer_list>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::InterfaceType;
using platform::NetworkPath;

/// What the path goes over first; a tunnel counts only where nothing else is known.
QString connectionName(const NetworkPath &path)
{
    const auto uses = [&path](InterfaceType type) {
        return std::ranges::find(path.interfaceTypes, type) != path.interfaceTypes.end();
    };
    if (uses(InterfaceType::Wifi))
        return u"Wi-Fi"_s;
    if (uses(InterfaceType::Wired))
        return u"Ethernet"_s;
    //: How the computer is connected: by a mobile network, or in another way.
    return uses(InterfaceType::Cellular) ? Text::tr("Cellular") : Text::tr("Other");
}

std::optional<Verdict> connectionVerdict(const std::optional<NetworkPath> &path)
{
    if (!path || path->status == NetworkPath::Status::Invalid)
        return std::nullopt;
    if (path->status != NetworkPath::Status::Satisfied)
        return Verdict{Text::tr("Not connected"), CapabilityStatus::Warning};
    return Verdict{connectionName(*path), CapabilityStatus::Supported};
}

Verdict protocolVerdict(bool isOffered)
{
    return isOffered ? availability(true) : Verdict{Text::tr("Not offered by this network")};
}

Verdict dnsVerdict(bool isThere)
{
    return isThere ? availability(true) : Verdict{Text::tr("Not available"), CapabilityStatus::Warning};
}

/// What a path that leads somewhere says of itself; of any other it means nothing.
QList<CapabilityItem> pathItems(const NetworkPath &path, bool onMac)
{
    QList<CapabilityItem> items;
    if (onMac) {
        // nw_path_is_expensive
        items += passing(fact(u"metered"_s, Text::tr("Metered connection"), yesOrNo(path.isExpensive)));
        // nw_path_is_constrained
        items += passing(fact(u"lowDataMode"_s, Text::tr("Low Data Mode"), onOrOff(path.isConstrained)));
    }
    // nw_path_has_ipv4, _ipv6 and _dns; Linux: default routes, /etc/resolv.conf
    items += passing(judged(u"ipv4"_s, u"IPv4"_s, protocolVerdict(path.supportsIPv4)));
    items += passing(judged(u"ipv6"_s, u"IPv6"_s, protocolVerdict(path.supportsIPv6)));
    items += passing(judged(u"dns"_s, u"DNS"_s, dnsVerdict(path.supportsDNS)));
    return items;
}

QList<CapabilityItem> addressItems(const std::vector<platform::InterfaceEntry> &interfaces)
{
    QList<CapabilityItem> items;
    // getifaddrs
    for (const auto &[interfaceName, address] : ipv4Addresses(interfaces)) {
        if (items.size() == mostOfAKind)
            break;
        // An address of this range is one that nobody gave.
        const auto verdict =
            address.startsWith(u"169.254."_s)
                ? Verdict{Text::tr("%1 (self-assigned)").arg(address), CapabilityStatus::Warning}
                : Verdict{address};
        items += passing(judged(u"address.%1"_s.arg(items.size() + 1),
                                Text::tr("Address (%1)").arg(interfaceName), verdict));
    }
    return items;
}

/// Whether an address of the entry makes a tunnel of its interface. A Mac keeps tunnels of its own (utun),
/// which have no IPv4 address.
bool isTunnelAddress(const platform::InterfaceEntry &entry, bool onMac)
{
    using namespace std::string_view_literals;
    const auto isNamed = [&entry](std::initializer_list<std::string_view> prefixes) {
        return std::ranges::any_of(
            prefixes, [&entry](std::string_view prefix) { return entry.name.starts_with(prefix); });
    };
    if (!entry.up || entry.family == platform::AddressFamily::Link)
        return false;
    if (onMac)
        return entry.family == platform::AddressFamily::IPv4 && isNamed({"utun"sv, "ipsec"sv, "ppp"sv});
    return isNamed({"tun"sv, "wg"sv, "ppp"sv});
}

QString vpnText(const std::vector<platform::InterfaceEntry> &interfaces, bool onMac)
{
    // getifaddrs
    if (interfaces.empty())
        return notReadable();
    const bool isActive = std::ranges::any_of(
        interfaces, [onMac](const platform::InterfaceEntry &entry) { return isTunnelAddress(entry, onMac); });
    return isActive ? Text::tr("Active") : Text::tr("None detected");
}

Verdict ethernetVerdict(const platform::LinkReading &link, const language::Formats &formats)
{
    const auto speed = Text::tr("%1\u00a0Mbit/s").arg(wholeNumber(link.speed.value_or(0), formats));
    if (link.duplex == "full")
        return {Text::tr("%1, full duplex").arg(speed)};
    if (link.duplex == "half")
        return {Text::tr("%1, half duplex").arg(speed), CapabilityStatus::Warning};
    return {speed};
}

QList<CapabilityItem> ethernetItems(const platform::Machine &machine, const language::Formats &formats)
{
    QList<CapabilityItem> items;
    // /sys/class/net/IF/speed, duplex
    auto links = machine.network().ethernetLinks();
    std::erase_if(links, [](const platform::LinkReading &link) { return link.speed.value_or(0) <= 0; });
    Numbered place{.isOnly = links.size() == 1};
    for (const auto &link : links) {
        if (place.number > mostOfAKind)
            break;
        items += passing(judged(u"ethernetSpeed.%1"_s.arg(place.number),
                                place.label(Text::tr("Ethernet speed"), Text::tr("Ethernet speed %1")),
                                ethernetVerdict(link, formats)));
        ++place.number;
    }
    return items;
}

std::optional<Verdict> bluetoothVerdict(const std::optional<platform::BluetoothReading> &bluetooth)
{
    if (!bluetooth)
        return std::nullopt;
    if (!bluetooth->isPresent)
        return Verdict{Text::tr("None")};
    return bluetooth->isBlocked ? Verdict{Text::tr("Off")}
                                : Verdict{Text::tr("On"), CapabilityStatus::Supported};
}

} // namespace

CapabilitySection networkSection(const platform::Machine &machine, const language::Formats &formats,
                                 const std::optional<NetworkPath> &networkPath)
{
    const bool onMac = isMac(machine);
    // nw_path_monitor; Linux: the default routes
    QList<CapabilityItem> items = {
        passing(judged(u"connection"_s, Text::tr("Connection"), connectionVerdict(networkPath)))};
    if (networkPath && networkPath->status == NetworkPath::Status::Satisfied)
        items += pathItems(*networkPath, onMac);
    const auto interfaces = machine.network().interfaces();
    items += addressItems(interfaces);
    // CWWiFiClient; Linux: /sys/class/net, /sys/class/rfkill
    items += wifiItems(machine.network().wifi(), formats);
    items += passing(fact(u"vpn"_s, u"VPN"_s, vpnText(interfaces, onMac)));
    if (!onMac) {
        items += ethernetItems(machine, formats);
        // /sys/class/bluetooth, /sys/class/rfkill
        items += judged(u"bluetooth"_s, u"Bluetooth"_s, bluetoothVerdict(machine.network().bluetooth()));
    }
    return sectionOf(u"network", std::move(items));
}

} // namespace quillmark::inspection::DeviceProbe
