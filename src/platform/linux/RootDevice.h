// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/Files.h"
#include "platform/linux/MountTable.h"

#include <optional>
#include <string>

namespace quillmark::platform {

/// The kernel's name of the block device with the root file system: "sda2", "dm-0". None where the root lies
/// on no block device (a network, a container, memory), and where the kernel does not describe its devices.
std::optional<std::string> rootDevice(const Files &files, const MountTable &mountTable);

/// The kind of encryption that the device lies on, however far below it: "CRYPT-LUKS2-", what the mapping's
/// identifier begins with. None where any part of the device is not encrypted.
std::optional<std::string> encryptionOf(const Files &files, const std::string &device);

} // namespace quillmark::platform
