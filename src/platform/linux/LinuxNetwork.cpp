// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxNetwork.h"

#include "platform/linux/LinkFiles.h"
#include "platform/linux/LinuxPathWatch.h"
#include "platform/linux/RouteFiles.h"
#include "platform/linux/TextFields.h"
#include "platform/posix/numericAddress.h"

#include <algorithm>
#include <utility>

#include <ifaddrs.h>
#include <linux/if_link.h>
#include <net/if.h>

namespace quillmark::platform {

namespace {

/// None for a family that has no place in the list.
std::optional<InterfaceEntry> entryOf(const ifaddrs &found)
{
    if (!found.ifa_addr)
        return std::nullopt;
    InterfaceEntry entry;
    const int family = found.ifa_addr->sa_family;
    if (family == AF_PACKET) {
        // The counters of 32 bits, which the kernel cuts from its own of 64.
        if (const auto *counters = static_cast<const rtnl_link_stats *>(found.ifa_data)) {
            entry.receivedBytes = counters->rx_bytes;
            entry.sentBytes = counters->tx_bytes;
        }
    } else if (family == AF_INET || family == AF_INET6) {
        entry.family = family == AF_INET ? AddressFamily::IPv4 : AddressFamily::IPv6;
        entry.address = numericAddress(*found.ifa_addr);
    } else {
        return std::nullopt;
    }
    entry.name = interfaceLabel(found.ifa_name);
    entry.up = (found.ifa_flags & IFF_UP) != 0;
    entry.loopback = (found.ifa_flags & IFF_LOOPBACK) != 0;
    return entry;
}

/// A route stays in the table when the cable is pulled. An interface that does not know its state counts as
/// connected.
bool isConnected(const Files &files, const std::string &interfaceName)
{
    const auto state = files.value("/sys/class/net/" + interfaceName + "/operstate");
    return state != "down" && state != "lowerlayerdown" && state != "notpresent";
}

/// Takes the preferred route that leads out; whether there is one.
bool addRoute(const Files &files, const std::vector<DefaultRoute> &routes, PathReading &reading)
{
    for (const DefaultRoute &route : routes) {
        if (std::ranges::find(reading.interfaceNames, route.interfaceName) != reading.interfaceNames.end())
            return true;
        if (!isConnected(files, route.interfaceName))
            continue;
        reading.interfaceNames.push_back(route.interfaceName);
        const InterfaceType type = interfaceType(files, route.interfaceName);
        auto &types = reading.path.interfaceTypes;
        if (std::ranges::find(types, type) == types.end())
            types.push_back(type);
        return true;
    }
    return false;
}

} // namespace

std::vector<InterfaceEntry> readInterfaces()
{
    std::vector<InterfaceEntry> entries;
    ifaddrs *list = nullptr;
    if (::getifaddrs(&list) != 0)
        return entries;
    for (const ifaddrs *found = list; found; found = found->ifa_next) {
        if (auto entry = entryOf(*found))
            entries.push_back(std::move(*entry));
    }
    ::freeifaddrs(list);
    return entries;
}

std::optional<PathReading> readPath(const Files &files)
{
    const auto routes = files.text("/proc/net/route");
    const auto ipv6Routes = files.text("/proc/net/ipv6_route");
    if (!routes && !ipv6Routes)
        return std::nullopt;
    PathReading reading;
    NetworkPath &path = reading.path;
    path.supportsIPv4 = routes && addRoute(files, parseRoute(*routes), reading);
    path.supportsIPv6 = ipv6Routes && addRoute(files, parseIpv6Route(*ipv6Routes), reading);
    const bool isSatisfied = path.supportsIPv4 || path.supportsIPv6;
    path.status = isSatisfied ? NetworkPath::Status::Satisfied : NetworkPath::Status::Unsatisfied;
    if (isSatisfied)
        path.supportsDNS = hasNameServer(files.text("/etc/resolv.conf").value_or(std::string()));
    return reading;
}

LinuxNetwork::LinuxNetwork(const Files &files)
    : m_files(files)
{}

std::vector<InterfaceEntry> LinuxNetwork::interfaces() const
{
    return readInterfaces();
}

std::optional<NetworkPath> LinuxNetwork::currentPath() const
{
    auto reading = readPath(m_files);
    return reading ? std::optional(std::move(reading->path)) : std::nullopt;
}

std::unique_ptr<PathWatch> LinuxNetwork::watchPath(PathHandler handler) const
{
    return startPathWatch(m_files, std::move(handler));
}

std::optional<WifiReading> LinuxNetwork::wifi() const
{
    return readWifi(m_files);
}

std::vector<LinkReading> LinuxNetwork::ethernetLinks() const
{
    return readEthernetLinks(m_files);
}

std::optional<BluetoothReading> LinuxNetwork::bluetooth() const
{
    return readBluetooth(m_files);
}

} // namespace quillmark::platform
