// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// The volume that the system started from. Sizes in bytes.
struct StartupVolume
{
    std::string name; ///< "Macintosh HD"; "/" where it has no label
    std::int64_t total = 0;
    std::optional<std::int64_t> available; ///< free for ordinary users
    std::optional<std::int64_t>
        availableForImportantUsage; ///< with what the system would clear away for them
    std::string fileSystem;         ///< the system's word: "apfs", "ext4"; empty when not told
    std::optional<bool> supportsFileCloning;
    std::optional<bool> supportsCaseSensitiveNames;

    bool operator==(const StartupVolume &) const = default;
};

/// A disk, not a part of one.
struct DiskReading
{
    std::optional<std::string> productName;
    std::optional<std::int64_t> size;                ///< bytes
    std::optional<std::string> mediumType;           ///< "Solid State", "Rotational"
    std::optional<std::string> interconnect;         ///< "Apple Fabric", "PCI-Express", "SATA", "USB"
    std::optional<std::string> interconnectLocation; ///< "Internal", "External"; "File" of a disk image
    bool removable = false;
    std::optional<bool> unmap; ///< takes notice of what was deleted (TRIM)

    bool operator==(const DiskReading &) const = default;
};

/// A local volume beside the start-up one.
struct VolumeReading
{
    std::string name; ///< its label, or the place it always has ("/home"); empty where it has neither
    std::string fileSystem;
    std::optional<std::int64_t> total;     ///< bytes
    std::optional<std::int64_t> available; ///< bytes, for ordinary users
    bool isReadOnly = false;
    std::optional<bool> isInternal;

    bool operator==(const VolumeReading &) const = default;
};

class Volumes
{
public:
    virtual ~Volumes() = default;

    /// None when it cannot be read.
    virtual std::optional<StartupVolume> startupVolume() const = 0;

    /// Whole disks, in the system's order. None when the list cannot be had. No disk is woken.
    virtual std::optional<std::vector<DiskReading>> disks() const = 0;

    /// Local volumes beside the start-up one, each once; disk images and volumes in a network are left out.
    /// None when the list cannot be had. No disk is woken and no server asked.
    virtual std::optional<std::vector<VolumeReading>> otherVolumes() const = 0;
};

} // namespace quillmark::platform
