// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// A mounted file system as the kernel remembers it.
struct MountedVolume
{
    std::string place;  ///< "/Volumes/Backup"
    std::string device; ///< without its folder: "disk4s2"; empty where it is not in /dev
    std::string fileSystem;
    std::int64_t total = 0;     ///< bytes
    std::int64_t available = 0; ///< bytes, for ordinary users
    bool isReadOnly = false;
    bool isLocal = false;
    bool isBrowsable = false; ///< shown to people

    bool operator==(const MountedVolume &) const = default;
};

/// getfsstat(2) with MNT_NOWAIT: answered from memory, so that no sleeping disk is woken and no server asked.
/// None when there is no list.
std::optional<std::vector<MountedVolume>> mountedVolumes();

} // namespace quillmark::platform
