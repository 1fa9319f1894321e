// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/networkRows.h"
#include "inspection/rows.h"

#include <algorithm>
#include <initializer_list>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::InterfaceType;
using platform::NetworkPath;

constexpr qsizetype mostOfAKind = 16;

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
    return uses(InterfaceType::Cellular) ? Text::tr("Cellular") : Text::tr("Other");
}

CapabilityItem connectionItem(const std::optional<NetworkPath> &path)
{
    const auto label = Text::tr("Connection");
    if (!path || path->status == NetworkPath::Status::Invalid)
        return volatileItem(u"connection"_s, label, notReadable());
    if (path->status != NetworkPath::Status::Satisfied)
        return volatileItem(u"connection"_s, label, Text::tr("Not connected"), CapabilityStatus::Warning);
    return volatileItem(u"connection"_s, label, connectionName(*path), CapabilityStatus::Supported);
}

CapabilityItem protocolItem(const QString &key, const QString &name, bool isOffered)
{
    if (isOffered)
        return volatileItem(key, name, Text::tr("Available"), CapabilityStatus::Supported);
    return volatileItem(key, name, Text::tr("Not offered by this network"));
}

/// What a path that leads somewhere says of itself; of any other it means nothing.
QList<CapabilityItem> pathItems(const platform::Machine &machine, const NetworkPath &path)
{
    QList<CapabilityItem> items;
    if (isMac(machine)) {
        // nw_path_is_expensive
        items += volatileItem(u"metered"_s, Text::tr("Metered connection"),
                              path.isExpensive ? Text::tr("Yes") : Text::tr("No"));
        // nw_path_is_constrained
        items += volatileItem(u"lowDataMode"_s, Text::tr("Low Data Mode"),
                              path.isConstrained ? Text::tr("On") : Text::tr("Off"));
    }
    // nw_path_has_ipv4, _ipv6 and _dns; Linux: default routes, /etc/resolv.conf
    items += protocolItem(u"ipv4"_s, u"IPv4"_s, path.supportsIPv4);
    items += protocolItem(u"ipv6"_s, u"IPv6"_s, path.supportsIPv6);
    items += path.supportsDNS
                 ? volatileItem(u"dns"_s, u"DNS"_s, Text::tr("Available"), CapabilityStatus::Supported)
                 : volatileItem(u"dns"_s, u"DNS"_s, Text::tr("Not available"), CapabilityStatus::Warning);
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
        const bool isSelfAssigned = address.startsWith(u"169.254."_s);
        items +=
            volatileItem(u"address.%1"_s.arg(items.size() + 1), Text::tr("Address (%1)").arg(interfaceName),
                         isSelfAssigned ? Text::tr("%1 (self-assigned)").arg(address) : address,
                         isSelfAssigned ? CapabilityStatus::Warning : CapabilityStatus::Info);
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

CapabilityItem vpnItem(const std::vector<platform::InterfaceEntry> &interfaces, bool onMac)
{
    // getifaddrs
    if (interfaces.empty())
        return volatileItem(u"vpn"_s, u"VPN"_s, notReadable());
    const bool isActive = std::ranges::any_of(
        interfaces, [onMac](const platform::InterfaceEntry &entry) { return isTunnelAddress(entry, onMac); });
    return volatileItem(u"vpn"_s, u"VPN"_s, isActive ? Text::tr("Active") : Text::tr("None detected"));
}

CapabilityItem ethernetItem(const platform::LinkReading &link, const QString &label,
                            const language::Formats &formats)
{
    const auto speed =
        withUnit(formats.number(static_cast<double>(link.speed.value_or(0))), Text::tr("Mbit/s"));
    if (link.duplex == "full")
        return volatileItem({}, label, Text::tr("%1, full duplex").arg(speed));
    if (link.duplex == "half")
        return volatileItem({}, label, Text::tr("%1, half duplex").arg(speed), CapabilityStatus::Warning);
    return volatileItem({}, label, speed);
}

QList<CapabilityItem> ethernetItems(const platform::Machine &machine, const language::Formats &formats)
{
    QList<CapabilityItem> items;
    // /sys/class/net/IF/speed, duplex
    auto links = machine.network().ethernetLinks();
    std::erase_if(links, [](const platform::LinkReading &link) { return link.speed.value_or(0) <= 0; });
    for (const auto &link : links) {
        const auto number = items.size() + 1;
        if (number > mostOfAKind)
            break;
        items += ethernetItem(
            link, links.size() < 2 ? Text::tr("Ethernet speed") : Text::tr("Ethernet speed %1").arg(number),
            formats);
        items.last().key = u"ethernetSpeed.%1"_s.arg(number);
    }
    return items;
}

CapabilityItem bluetoothItem(const platform::Machine &machine)
{
    CapabilityItem item = fact(u"bluetooth"_s, u"Bluetooth"_s, notReadable());
    // /sys/class/bluetooth, /sys/class/rfkill
    if (const auto bluetooth = machine.network().bluetooth()) {
        const bool isOn = bluetooth->isPresent && !bluetooth->isBlocked;
        item.value = isOn ? Text::tr("On") : bluetooth->isPresent ? Text::tr("Off") : Text::tr("None");
        item.status = isOn ? CapabilityStatus::Supported : CapabilityStatus::Info;
    }
    return item;
}

} // namespace

CapabilitySection networkSection(const platform::Machine &machine, const language::Formats &formats,
                                 const std::optional<NetworkPath> &networkPath)
{
    // nw_path_monitor; Linux: the default routes
    QList<CapabilityItem> items = {connectionItem(networkPath)};
    if (networkPath && networkPath->status == NetworkPath::Status::Satisfied)
        items += pathItems(machine, *networkPath);
    const auto interfaces = machine.network().interfaces();
    items += addressItems(interfaces);
    items += wifiItems(machine, formats);
    items += vpnItem(interfaces, isMac(machine));
    if (!isMac(machine)) {
        items += ethernetItems(machine, formats);
        items += bluetoothItem(machine);
    }
    return {
        .title = Text::tr("Network"), .symbol = u"network"_s, .items = std::move(items), .key = u"network"_s};
}

} // namespace quillmark::inspection::DeviceProbe
