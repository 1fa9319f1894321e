// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Volumes.h"

#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// The whole disks of the I/O registry in the order of their numbers (disk0, disk1, …), disk images among
/// them. What APFS and RAID make of others is none.
std::vector<DiskReading> readDisks();

/// Where the disk under a volume is, by the volume's device: "Internal", "External"; "File" for a disk image.
/// None when that is not told.
std::optional<std::string> interconnectLocation(const std::string &bsdName);

} // namespace quillmark::platform
