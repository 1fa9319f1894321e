// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Volumes.h"
#include "platform/linux/Files.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

/// How a disk is attached, after its device's path below /sys/devices, in the words that a Mac uses for
/// DiskReading::interconnect, and in the bus's own name where a Mac has no such bus; none when the path does
/// not tell.
std::optional<std::string_view> interconnectOf(std::string_view devicePath);

/// The disks of /sys/block in the order of their names, without optical drives, drives that are empty, and
/// what has no hardware of its own (loop, RAM, mapped devices). None when there is no such folder. Reads what
/// the kernel remembers of them and asks no disk.
std::optional<std::vector<DiskReading>> readDisks(const Files &files);

/// Whether the disk under a block device ("sda1", "dm-0") is built in; none when it is not known.
std::optional<bool> isInternal(const Files &files, std::string device);

} // namespace quillmark::platform
