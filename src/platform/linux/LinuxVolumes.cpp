// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxVolumes.h"

#include "platform/linux/BlockDevices.h"
#include "platform/linux/MountTable.h"
#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include <sys/statvfs.h>

namespace quillmark::platform {

namespace {

/// A label as the name of a link, where the characters that could do harm there are written as \x and two
/// digits.
std::string unescapedLabel(std::string_view name)
{
    std::string label;
    while (!name.empty()) {
        const bool isEscape = name.starts_with("\\x") && name.size() >= 4;
        const auto code = isEscape ? parseNumber<unsigned char>(name.substr(2, 2), 16) : std::nullopt;
        label += code ? static_cast<char>(*code) : name.front();
        name.remove_prefix(code ? 4 : 1);
    }
    return label;
}

/// The labels of file systems, by device.
std::map<std::string, std::string> labels(const Files &files)
{
    const std::string folder = "/dev/disk/by-label/";
    std::map<std::string, std::string> found;
    for (const std::string &name : files.names(folder)) {
        if (const auto device = files.linkName(folder + name))
            found.emplace(*device, unescapedLabel(name));
    }
    return found;
}

struct Space
{
    std::int64_t total;
    std::int64_t available;
};

std::optional<Space> spaceAt(const Files &files, const std::string &place)
{
    struct statvfs sizes = {};
    if (::statvfs(files.pathOf(place).c_str(), &sizes) != 0 || sizes.f_blocks == 0)
        return std::nullopt;
    return Space{.total = static_cast<std::int64_t>(sizes.f_blocks * sizes.f_frsize),
                 .available = static_cast<std::int64_t>(sizes.f_bavail * sizes.f_frsize)};
}

/// Whether all of a file system on a local block device is mounted. What shows a part of one elsewhere is
/// left out, but a part of a btrfs is a volume of its own kind.
bool isVolume(const Files &files, const Mount &mount)
{
    const bool isBtrfs = mount.fileSystem == "btrfs";
    if (!mount.source.starts_with("/dev/") || (mount.folder != "/" && !isBtrfs))
        return false;
    // Otherwise a program's file system that only calls itself by a device's name.
    if (!isBtrfs && !files.linkTarget("/sys/dev/block/" + mount.device))
        return false;
    constexpr std::array<std::string_view, 5> others = {"loop", "ram", "zram", "nbd", "rbd"};
    const std::string device = deviceName(files, mount);
    return std::ranges::none_of(others, [&](std::string_view kind) { return device.starts_with(kind); });
}

/// What a volume without a label is called by. Only places that every system has: another may hold the name
/// of a person.
std::string nameOfPlace(const std::string &place)
{
    constexpr std::array<std::string_view, 13> known = {
        "/boot", "/boot/efi", "/efi",       "/home", "/opt",     "/root",   "/srv",
        "/tmp",  "/usr",      "/usr/local", "/var",  "/var/log", "/var/tmp"};
    return std::ranges::find(known, place) != known.end() ? place : std::string();
}

} // namespace

LinuxVolumes::LinuxVolumes(const Files &files, const MountTable &mountTable)
    : m_files(files)
    , m_mountTable(mountTable)
{}

std::optional<StartupVolume> LinuxVolumes::startupVolume() const
{
    const auto space = spaceAt(m_files, "/");
    if (!space)
        return std::nullopt;
    StartupVolume volume = {.name = "/", .total = space->total, .available = space->available};
    const auto root = m_mountTable.root();
    if (!root)
        return volume;
    const auto names = labels(m_files);
    if (const auto label = names.find(deviceName(m_files, *root)); label != names.end())
        volume.name = label->second;
    volume.fileSystem = root->fileSystem;
    return volume;
}

std::optional<std::vector<DiskReading>> LinuxVolumes::disks() const
{
    return readDisks(m_files);
}

std::optional<std::vector<VolumeReading>> LinuxVolumes::otherVolumes() const
{
    const auto mounts = m_mountTable.mounts();
    if (!mounts)
        return std::nullopt;
    const auto names = labels(m_files);
    std::set<std::string> seen;
    if (const auto root = m_mountTable.root())
        seen.insert(deviceName(m_files, *root));
    std::vector<VolumeReading> volumes;
    for (const Mount &mount : *mounts) {
        if (!isVolume(m_files, mount))
            continue;
        const std::string device = deviceName(m_files, mount);
        if (!seen.insert(device).second)
            continue;
        const auto label = names.find(device);
        const auto space = spaceAt(m_files, mount.place);
        VolumeReading volume = {.name = label != names.end() ? label->second : nameOfPlace(mount.place),
                                .fileSystem = mount.fileSystem,
                                .isReadOnly = mount.isReadOnly,
                                .isInternal = isInternal(m_files, device)};
        if (space) {
            volume.total = space->total;
            volume.available = space->available;
        }
        volumes.push_back(std::move(volume));
    }
    return volumes;
}

} // namespace quillmark::platform
