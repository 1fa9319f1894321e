// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/RouteFiles.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include <net/route.h>

namespace quillmark::platform {

namespace {

/// The words of a line, as many as there are places for.
template <std::size_t count>
std::array<std::string_view, count> wordsOf(std::string_view line)
{
    std::array<std::string_view, count> words;
    for (std::string_view &word : words)
        word = takeWord(line);
    return words;
}

bool isZero(std::string_view digits)
{
    return !digits.empty() && digits.find_first_not_of('0') == std::string_view::npos;
}

void append(std::vector<DefaultRoute> &routes, std::string_view interfaceName, std::string_view flagsText,
            std::string_view metricText, int metricBase)
{
    // A route that rejects leads nowhere; the kernel ends its IPv6 table with one over the loopback
    // interface.
    const auto flags = parseNumber<std::uint32_t>(flagsText, 16);
    const auto metric = parseNumber<std::uint32_t>(metricText, metricBase);
    if (!flags || !metric || (*flags & RTF_UP) == 0 || (*flags & RTF_REJECT) != 0)
        return;
    if (!interfaceName.empty() && interfaceName != "*" && interfaceName != "lo")
        routes.push_back({std::string(interfaceName), *metric});
}

} // namespace

std::vector<DefaultRoute> parseRoute(std::string_view text)
{
    std::vector<DefaultRoute> routes;
    while (!text.empty()) {
        // Iface Destination Gateway Flags RefCnt Use Metric Mask …
        const auto words = wordsOf<8>(takeUntil(text, '\n'));
        if (isZero(words[1]) && isZero(words[7]))
            append(routes, words[0], words[3], words[6], 10);
    }
    std::ranges::stable_sort(routes, {}, &DefaultRoute::metric);
    return routes;
}

std::vector<DefaultRoute> parseIpv6Route(std::string_view text)
{
    std::vector<DefaultRoute> routes;
    while (!text.empty()) {
        // Destination, its prefix length, source, its prefix length, next hop, metric, two counters, flags,
        // interface.
        const auto words = wordsOf<10>(takeUntil(text, '\n'));
        if (isZero(words[1]) && isZero(words[3]))
            append(routes, words[9], words[8], words[5], 16);
    }
    std::ranges::stable_sort(routes, {}, &DefaultRoute::metric);
    return routes;
}

bool hasNameServer(std::string_view text)
{
    while (!text.empty()) {
        std::string_view line = trimmed(takeUntil(text, '\n'));
        if (takeWord(line) == "nameserver" && !takeWord(line).empty())
            return true;
    }
    return false;
}

} // namespace quillmark::platform
