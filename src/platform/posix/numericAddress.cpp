// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/numericAddress.h"

#include <array>
#include <cstring>

#include <arpa/inet.h>
#include <netinet/in.h>

namespace quillmark::platform {

std::optional<std::string> numericAddress(const sockaddr &address)
{
    std::array<char, INET6_ADDRSTRLEN> text = {};
    const char *written = nullptr;
    if (address.sa_family == AF_INET) {
        sockaddr_in internet = {};
        std::memcpy(&internet, &address, sizeof internet);
        written = ::inet_ntop(AF_INET, &internet.sin_addr, text.data(), text.size());
    } else {
        sockaddr_in6 internet = {};
        std::memcpy(&internet, &address, sizeof internet);
        written = ::inet_ntop(AF_INET6, &internet.sin6_addr, text.data(), text.size());
    }
    return written ? std::optional<std::string>(written) : std::nullopt;
}

} // namespace quillmark::platform
