// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

/// A line of /proc/self/mountinfo.
struct Mount
{
    std::string device; ///< "8:2"
    std::string folder; ///< within the file system: "/", unless only a part of it is mounted
    std::string place;
    std::string fileSystem;
    std::string source; ///< "/dev/sda2"
    bool isReadOnly = false;
};

/// The mounts in the order of the text, without those that a later one at the same place covers. Lines of
/// another form are left out.
std::vector<Mount> parseMountTable(std::string_view text);

} // namespace quillmark::platform
