// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/disks.h"

#include "platform/macos/ioRegistry.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace quillmark::platform {

namespace {

PropertyMap dictionaryUpwards(const io::Object &media, CFStringRef key)
{
    auto value = io::propertyUpwards(media, key);
    auto *map = std::get_if<PropertyMap>(&value.value);
    return map ? std::move(*map) : PropertyMap();
}

/// What a driver for storage made, and not a file system or a RAID.
bool isDisk(const io::Object &media, const PropertyMap &properties)
{
    if (get<bool>(properties, "Whole") != true)
        return false;
    io_registry_entry_t found = IO_OBJECT_NULL;
    if (::IORegistryEntryGetParentEntry(media.name(), kIOServicePlane, &found) != KERN_SUCCESS)
        return false;
    const io::Object parent(found);
    return ::IOObjectConformsTo(parent.name(), "IOBlockStorageDriver") != 0;
}

DiskReading readDisk(const io::Object &media, const PropertyMap &properties)
{
    const PropertyMap device = dictionaryUpwards(media, CFSTR("Device Characteristics"));
    const PropertyMap protocol = dictionaryUpwards(media, CFSTR("Protocol Characteristics"));
    const PropertyMap features = dictionaryUpwards(media, CFSTR("IOStorageFeatures"));
    return {.productName = get<std::string>(device, "Product Name"),
            .size = get<std::int64_t>(properties, "Size"),
            .mediumType = get<std::string>(device, "Medium Type"),
            .interconnect = get<std::string>(protocol, "Physical Interconnect"),
            .interconnectLocation = get<std::string>(protocol, "Physical Interconnect Location"),
            .removable = get<bool>(properties, "Removable").value_or(false),
            .unmap = get<bool>(features, "Unmap")};
}

} // namespace

std::vector<DiskReading> readDisks()
{
    std::vector<std::pair<std::int64_t, DiskReading>> numbered;
    for (const io::Object &media : io::servicesOfClass("IOMedia")) {
        const PropertyMap properties = io::properties(media);
        const auto number =
            get<std::int64_t>(properties, "BSD Unit").value_or(std::numeric_limits<std::int64_t>::max());
        if (isDisk(media, properties))
            numbered.emplace_back(number, readDisk(media, properties));
    }
    // The registry lists them as they were found, which differs from start to start.
    std::ranges::stable_sort(numbered, {}, &std::pair<std::int64_t, DiskReading>::first);
    std::vector<DiskReading> disks;
    for (auto &disk : numbered)
        disks.push_back(std::move(disk.second));
    return disks;
}

std::optional<std::string> interconnectLocation(const std::string &bsdName)
{
    const io::Object media = io::mediaNamed(bsdName);
    if (!media)
        return std::nullopt;
    return get<std::string>(dictionaryUpwards(media, CFSTR("Protocol Characteristics")),
                            "Physical Interconnect Location");
}

} // namespace quillmark::platform
