// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/Files.h"

#include <mutex>
#include <optional>
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

/// The kernel's name of the device that is mounted ("sda2", "dm-0"); of a file system over several devices
/// only the source tells it. Empty when there is none.
std::string deviceName(const Files &files, const Mount &mount);

/// The mounts that this process sees. Several subjects ask for them, and the kernel writes a long text each
/// time it is read: it is read again only when the kernel says that it has changed. May be asked from any
/// thread.
class MountTable
{
public:
    explicit MountTable(const Files &files);

    /// None when there is no such table.
    std::optional<std::vector<Mount>> mounts() const;

    /// What is seen at "/".
    std::optional<Mount> root() const;

private:
    mutable std::mutex m_mutex;
    mutable HeldFile m_file;
    mutable std::optional<std::vector<Mount>> m_mounts;
};

} // namespace quillmark::platform
