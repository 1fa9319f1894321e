// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"

#include <vector>

namespace quillmark::platform {

/// getifaddrs(3): the interfaces of this machine and their addresses; the Link entries alone when asked so.
/// The counters of a link are multiples of 1024 for programs that are not part of the system.
enum class InterfaceEntries { All, Links };
std::vector<InterfaceEntry> readInterfaces(InterfaceEntries wanted);

} // namespace quillmark::platform
