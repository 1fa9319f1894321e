// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinkCounters.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace quillmark::platform {

namespace {

/// IFF_UP, IFF_LOOPBACK, …; none of them when there is no such interface.
unsigned flagsOf(const FileDescriptor &socket, std::string_view interfaceName)
{
    ifreq request = {};
    if (interfaceName.size() >= sizeof request.ifr_name)
        return 0;
    std::ranges::copy(interfaceName, std::begin(request.ifr_name));
    if (::ioctl(socket.number(), SIOCGIFFLAGS, &request) != 0)
        return 0;
    return static_cast<unsigned short>(request.ifr_flags);
}

} // namespace

std::vector<LinkBytes> parseLinkTable(std::string_view text)
{
    constexpr int receivedField = 0;
    constexpr int sentField = 8;
    std::vector<LinkBytes> links;
    while (!text.empty()) {
        std::string_view line = takeUntil(text, '\n');
        const std::string_view name = trimmed(takeUntil(line, ':'));
        std::array<std::optional<std::uint64_t>, sentField + 1> fields;
        for (auto &field : fields)
            field = parseNumber<std::uint64_t>(takeWord(line));
        if (fields[receivedField] && fields[sentField])
            links.push_back({name, static_cast<std::uint32_t>(*fields[receivedField]),
                             static_cast<std::uint32_t>(*fields[sentField])});
    }
    return links;
}

LinkCounters::LinkCounters(const Files &files)
    : m_table(files, "/proc/net/dev", HeldFile::figures)
    , m_socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{}

std::vector<InterfaceEntry> LinkCounters::read()
{
    std::vector<InterfaceEntry> entries;
    for (const LinkBytes &link : parseLinkTable(m_table.read().value_or(std::string_view()))) {
        const unsigned flags = flagsOf(m_socket, link.name);
        entries.push_back({.name = std::string(link.name),
                           .up = (flags & IFF_UP) != 0,
                           .loopback = (flags & IFF_LOOPBACK) != 0,
                           .address = {},
                           .receivedBytes = link.received,
                           .sentBytes = link.sent});
    }
    return entries;
}

} // namespace quillmark::platform
