// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

/// A route to everywhere that is not more precisely routed.
struct DefaultRoute
{
    std::string interfaceName;
    std::uint32_t metric = 0; ///< the lowest is taken
};

/// The usable default routes of /proc/net/route, the preferred one first.
std::vector<DefaultRoute> parseRoute(std::string_view text);

/// The usable default routes of /proc/net/ipv6_route, the preferred one first.
std::vector<DefaultRoute> parseIpv6Route(std::string_view text);

/// Whether an /etc/resolv.conf names a server.
bool hasNameServer(std::string_view text);

} // namespace quillmark::platform
