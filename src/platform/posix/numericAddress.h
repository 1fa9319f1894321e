// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include <sys/socket.h>

namespace quillmark::platform {

/// An address of the family AF_INET or AF_INET6 as text, without a zone: "192.0.2.17", "2001:db8::1". It must
/// be as long as its family's.
std::optional<std::string> numericAddress(const sockaddr &address);

} // namespace quillmark::platform
