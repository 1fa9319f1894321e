// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"
#include "platform/linux/Files.h"

#include <memory>

namespace quillmark::platform {

/// Network::watchPath() by the kernel's notices of changed links, addresses and routes. Another list of
/// interfaces or addresses is reported too, even where the path itself stays as it was. Null when the kernel
/// gives no notices.
std::unique_ptr<PathWatch> startPathWatch(const Files &files, Network::PathHandler handler);

} // namespace quillmark::platform
