// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillmark::platform {

/// Lines of /proc/meminfo, in bytes. Absent when this kernel does not tell.
struct MemoryInfo
{
    std::optional<std::uint64_t>
        total; ///< without what the kernel's image and the firmware keep for themselves
    std::optional<std::uint64_t> swapTotal;
    std::optional<std::uint64_t> swapFree;
    /// What programs hold and share, used lately or not: a kernel without swap may count all of it as
    /// inactive. Without the files that are kept at hand, which give way.
    std::optional<std::uint64_t> active;
    std::uint64_t wired = 0; ///< what can be neither moved nor swapped out: locked pages and the kernel's own
    std::uint64_t compressed = 0; ///< memory that zswap takes
};

MemoryInfo parseMemInfo(std::string_view text);

/// The record of the kernel value "vm.swapusage".
std::optional<Bytes> swapUsage(const MemoryInfo &memory);

/// The record of the kernel value "kern.memorystatus_vm_pressure_level", from the text of
/// /proc/pressure/memory.
std::optional<Bytes> pressureLevel(std::string_view text);

/// Bytes of memory that a zram device takes, from its mm_stat.
std::uint64_t parseZramMemory(std::string_view text);

} // namespace quillmark::platform
