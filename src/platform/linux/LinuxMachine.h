// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

#include <filesystem>
#include <memory>

namespace quillmark::platform {

/// A Linux machine as its kernel's files under `root` describe it: /proc, /sys, /etc. With the default it is
/// this machine; a recorded tree serves tests. What has no file (the clock, the network interfaces) is always
/// this machine's.
std::unique_ptr<Machine> linuxMachine(const std::filesystem::path &root = "/");

} // namespace quillmark::platform
