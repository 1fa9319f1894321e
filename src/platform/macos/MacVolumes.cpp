// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacVolumes.h"

#include "platform/macos/cf.h"
#include "platform/macos/disks.h"
#include "platform/macos/mountedVolumes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmark::platform {

namespace {

/// "disk3" of "disk3s1s1": a disk, or the container that APFS makes of one.
std::string_view wholeDisk(std::string_view device)
{
    constexpr std::string_view prefix = "disk";
    if (!device.starts_with(prefix))
        return device;
    return device.substr(0, device.find('s', prefix.size()));
}

std::string lastComponent(std::string_view place)
{
    return std::string(place.substr(place.rfind('/') + 1));
}

cf::Owner<CFDictionaryRef> startupProperties()
{
    const cf::Owner root(
        ::CFURLCreateWithFileSystemPath(kCFAllocatorDefault, CFSTR("/"), kCFURLPOSIXPathStyle, true));
    std::array<const void *, 6> keys = {
        kCFURLVolumeLocalizedNameKey,       kCFURLVolumeTotalCapacityKey,
        kCFURLVolumeAvailableCapacityKey,   kCFURLVolumeAvailableCapacityForImportantUsageKey,
        kCFURLVolumeSupportsFileCloningKey, kCFURLVolumeSupportsCaseSensitiveNamesKey,
    };
    const cf::Owner wanted(::CFArrayCreate(kCFAllocatorDefault, keys.data(),
                                           static_cast<CFIndex>(keys.size()), &kCFTypeArrayCallBacks));
    if (!root || !wanted)
        return {};
    return cf::Owner(::CFURLCopyResourcePropertiesForKeys(root.get(), wanted.get(), nullptr));
}

} // namespace

std::optional<StartupVolume> MacVolumes::startupVolume() const
{
    const auto owner = startupProperties();
    const CFDictionaryRef properties = owner.get();
    const auto total = cf::integer(cf::find(properties, kCFURLVolumeTotalCapacityKey));
    if (!total)
        return std::nullopt;
    StartupVolume volume = {
        .name = cf::text(cf::find(properties, kCFURLVolumeLocalizedNameKey)).value_or(std::string()),
        .total = *total,
        .available = cf::integer(cf::find(properties, kCFURLVolumeAvailableCapacityKey)),
        .availableForImportantUsage =
            cf::integer(cf::find(properties, kCFURLVolumeAvailableCapacityForImportantUsageKey)),
        .supportsFileCloning = cf::boolean(cf::find(properties, kCFURLVolumeSupportsFileCloningKey)),
        .supportsCaseSensitiveNames =
            cf::boolean(cf::find(properties, kCFURLVolumeSupportsCaseSensitiveNamesKey))};
    for (const MountedVolume &mounted : mountedVolumes().value_or(std::vector<MountedVolume>())) {
        if (mounted.place == "/")
            volume.fileSystem = mounted.fileSystem;
    }
    return volume;
}

std::optional<std::vector<DiskReading>> MacVolumes::disks() const
{
    // There is always a disk that the system started from: an empty list is one that could not be read.
    auto disks = readDisks();
    return disks.empty() ? std::nullopt : std::optional(std::move(disks));
}

std::optional<std::vector<VolumeReading>> MacVolumes::otherVolumes() const
{
    const auto mounted = mountedVolumes();
    if (!mounted)
        return std::nullopt;
    const auto root = std::ranges::find(*mounted, "/", &MountedVolume::place);
    const std::string_view startupDisk =
        root == mounted->end() ? std::string_view() : wholeDisk(root->device);
    std::vector<VolumeReading> volumes;
    for (const MountedVolume &volume : *mounted) {
        if (!volume.isLocal || !volume.isBrowsable || volume.place == "/" || volume.device.empty() ||
            wholeDisk(volume.device) == startupDisk)
            continue;
        const auto location = interconnectLocation(volume.device);
        if (location == "File")
            continue;
        volumes.push_back({.name = lastComponent(volume.place),
                           .fileSystem = volume.fileSystem,
                           .total = volume.total,
                           .available = volume.available,
                           .isReadOnly = volume.isReadOnly,
                           .isInternal = location ? std::optional(*location == "Internal") : std::nullopt});
    }
    return volumes;
}

} // namespace quillmark::platform
