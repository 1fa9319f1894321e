// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"

#include <memory>

namespace quillmark::platform {

/// Network::watchPath() by Network.framework's path monitor. The handler is called on a queue of its own.
/// Null when there is no monitor to be had.
std::unique_ptr<PathWatch> startPathWatch(Network::PathHandler handler);

} // namespace quillmark::platform
