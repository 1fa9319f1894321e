// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillmark::platform {

/// The volume that the system started from. Sizes in bytes.
struct StartupVolume
{
    std::string name; ///< "Macintosh HD"; "/" where it has no label
    std::int64_t total = 0;
    std::optional<std::int64_t> available;                  ///< free for ordinary users
    std::optional<std::int64_t> availableForImportantUsage; ///< with what the system would clear away for them
    std::string fileSystem;                                 ///< the system's word: "apfs", "ext4"; empty when not told
    std::optional<bool> supportsFileCloning;
    std::optional<bool> supportsCaseSensitiveNames;

    bool operator==(const StartupVolume &) const = default;
};

class Volumes
{
public:
    virtual ~Volumes() = default;

    /// None when it cannot be read.
    virtual std::optional<StartupVolume> startupVolume() const = 0;
};

} // namespace quillmark::platform
