// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxVolumes.h"

#include "platform/linux/TextFields.h"

#include <string>
#include <string_view>

#include <sys/statvfs.h>

namespace quillmark::platform {

namespace {

/// What /proc/self/mountinfo says of a mount.
struct Mount
{
    std::string_view device; ///< "8:2"
    std::string_view fileSystem;
    std::string_view source; ///< "/dev/sda2"
};

/// The mount that is seen at "/": a later one covers those before it.
Mount parseMountInfo(std::string_view text)
{
    Mount root;
    while (!text.empty()) {
        std::string_view line = takeUntil(text, '\n');
        takeWord(line); // its number
        takeWord(line); // its parent's
        const std::string_view device = takeWord(line);
        takeWord(line); // the folder within the file system
        const std::string_view place = takeWord(line);
        // Optional fields come before the dash, as many as there are.
        const std::size_t dash = line.find(" - ");
        if (place != "/" || dash == std::string_view::npos)
            continue;
        line.remove_prefix(dash + 3);
        root.device = device;
        root.fileSystem = takeWord(line);
        root.source = takeWord(line);
    }
    return root;
}

/// The kernel's name of the device ("sda2", "dm-0"); of a btrfs only the source tells it.
std::string deviceName(const Files &files, const Mount &mount)
{
    if (const auto name = files.linkName("/sys/dev/block/" + std::string(mount.device)))
        return *name;
    if (!mount.source.starts_with("/dev/"))
        return {};
    return files.linkName(mount.source).value_or(std::string(lastComponent(mount.source)));
}

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

std::string labelOf(const Files &files, const std::string &device)
{
    const std::string folder = "/dev/disk/by-label/";
    for (const std::string &name : files.names(folder)) {
        if (!device.empty() && files.linkName(folder + name) == device)
            return unescapedLabel(name);
    }
    return "/";
}

} // namespace

LinuxVolumes::LinuxVolumes(const Files &files)
    : m_files(files)
{}

std::optional<StartupVolume> LinuxVolumes::startupVolume() const
{
    struct statvfs sizes = {};
    if (::statvfs(m_files.pathOf("/").c_str(), &sizes) != 0 || sizes.f_blocks == 0)
        return std::nullopt;
    const std::string mounts = m_files.text("/proc/self/mountinfo").value_or(std::string());
    const Mount mount = parseMountInfo(mounts);
    StartupVolume volume;
    volume.name = labelOf(m_files, deviceName(m_files, mount));
    volume.total = static_cast<std::int64_t>(sizes.f_blocks * sizes.f_frsize);
    volume.available = static_cast<std::int64_t>(sizes.f_bavail * sizes.f_frsize);
    volume.fileSystem = mount.fileSystem;
    return volume;
}

std::optional<std::vector<DiskReading>> LinuxVolumes::disks() const
{
    return std::nullopt;
}

std::optional<std::vector<VolumeReading>> LinuxVolumes::otherVolumes() const
{
    return std::nullopt;
}

} // namespace quillmark::platform
