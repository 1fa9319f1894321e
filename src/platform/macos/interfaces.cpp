// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/interfaces.h"

#include "platform/posix/numericAddress.h"

#include <memory>
#include <optional>
#include <utility>

#include <ifaddrs.h>
#include <net/if.h>
#include <net/if_var.h>
#include <sys/socket.h>

namespace quillmark::platform {

namespace {

/// None for a family that has no place in the list.
std::optional<InterfaceEntry> entryOf(const ifaddrs &found, InterfaceEntries wanted)
{
    if (!found.ifa_addr || !found.ifa_name)
        return std::nullopt;
    InterfaceEntry entry;
    const int family = found.ifa_addr->sa_family;
    if (family == AF_LINK) {
        if (const auto *counters = static_cast<const if_data *>(found.ifa_data)) {
            entry.receivedBytes = counters->ifi_ibytes;
            entry.sentBytes = counters->ifi_obytes;
        }
    } else if (wanted == InterfaceEntries::All && (family == AF_INET || family == AF_INET6)) {
        entry.family = family == AF_INET ? AddressFamily::IPv4 : AddressFamily::IPv6;
        entry.address = numericAddress(*found.ifa_addr);
    } else {
        return std::nullopt;
    }
    entry.name = found.ifa_name;
    entry.up = (found.ifa_flags & IFF_UP) != 0;
    entry.loopback = (found.ifa_flags & IFF_LOOPBACK) != 0;
    return entry;
}

} // namespace

std::vector<InterfaceEntry> readInterfaces(InterfaceEntries wanted)
{
    ifaddrs *list = nullptr;
    if (::getifaddrs(&list) != 0)
        return {};
    const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> owner(list, &::freeifaddrs);
    std::vector<InterfaceEntry> entries;
    for (const ifaddrs *found = list; found; found = found->ifa_next) {
        if (auto entry = entryOf(*found, wanted))
            entries.push_back(std::move(*entry));
    }
    return entries;
}

} // namespace quillmark::platform
