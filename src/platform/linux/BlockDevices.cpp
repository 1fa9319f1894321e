// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/BlockDevices.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace quillmark::platform {

namespace {

constexpr std::string_view usb = "USB";
constexpr std::string_view pciExpress = "PCI-Express";
constexpr std::string_view virtio = "Virtio";

/// The NVMe disks of machines that reach them by several ways hang below this folder, not below a controller.
constexpr std::string_view nvmeSubsystems = "/virtual/nvme-subsystem/";

bool hasHardware(std::string_view devicePath)
{
    return !devicePath.contains("/virtual/") || devicePath.contains(nvmeSubsystems);
}

/// By name: what is attached like a disk and is none.
bool isOtherDevice(std::string_view name)
{
    constexpr std::array<std::string_view, 7> kinds = {"fd", "loop", "mtdblock", "ram", "rbd", "sr", "zram"};
    const bool isBootArea = name.starts_with("mmcblk") && (name.contains("boot") || name.contains("rpmb"));
    return isBootArea ||
           std::ranges::any_of(kinds, [name](std::string_view kind) { return name.starts_with(kind); });
}

/// The kernel counts in sectors of 512 bytes, whatever the disk does.
std::optional<std::int64_t> sizeOf(const Files &files, const std::string &folder)
{
    constexpr std::int64_t sectorBytes = 512;
    const auto sectors = files.number(folder + "/size");
    if (!sectors || *sectors <= 0 || *sectors > std::numeric_limits<std::int64_t>::max() / sectorBytes)
        return std::nullopt;
    return *sectors * sectorBytes;
}

/// The transport of a disk that hangs below an NVMe subsystem: that of its first controller.
std::optional<std::string> nvmeTransport(const Files &files, const std::string &folder)
{
    auto controllers = files.names(folder + "/device", "nvme");
    std::ranges::sort(controllers);
    for (const std::string &controller : controllers) {
        if (auto transport = files.value(folder + "/device/" + controller + "/transport"))
            return transport;
    }
    return std::nullopt;
}

/// "Rotational" is also what the kernel says while nobody has told it: a memory stick and a virtual disk do
/// not.
std::optional<std::string> mediumTypeOf(std::optional<std::int64_t> rotational,
                                        std::optional<std::string_view> interconnect, bool removable)
{
    if (rotational == 0)
        return "Solid State";
    const bool isDefault = interconnect == virtio || (interconnect == usb && removable);
    return rotational == 1 && !isDefault ? std::optional<std::string>("Rotational") : std::nullopt;
}

std::optional<DiskReading> readDisk(const Files &files, const std::string &name)
{
    if (isOtherDevice(name))
        return std::nullopt;
    const std::string folder = "/sys/block/" + name;
    const auto path = files.linkTarget(folder);
    if (!path || !hasHardware(*path) || files.number(folder + "/hidden") == 1)
        return std::nullopt;
    DiskReading disk;
    disk.size = sizeOf(files, folder);
    if (!disk.size)
        return std::nullopt;
    auto interconnect = interconnectOf(*path);
    if (path->contains(nvmeSubsystems)) {
        const auto transport = nvmeTransport(files, folder);
        if (transport && *transport != "pcie")
            return std::nullopt; // in a network
        interconnect = transport ? std::optional(pciExpress) : std::nullopt;
    }
    if (interconnect)
        disk.interconnect = *interconnect;
    disk.interconnectLocation = interconnect == usb ? "External" : "Internal";
    disk.productName = files.value(folder + "/device/model");
    disk.removable = files.number(folder + "/removable") == 1;
    disk.mediumType = mediumTypeOf(files.number(folder + "/queue/rotational"), interconnect, disk.removable);
    if (const auto discard = files.number(folder + "/queue/discard_max_bytes"))
        disk.unmap = *discard > 0;
    return disk;
}

} // namespace

std::optional<std::string_view> interconnectOf(std::string_view devicePath)
{
    // From the outside in: a USB enclosure may hold an ATA disk, and a virtual SCSI adapter hangs on Virtio.
    constexpr std::array<std::pair<std::string_view, std::string_view>, 7> buses = {{
        {"/usb", usb},
        {"/nvme", pciExpress},
        {"/ata", "SATA"},
        {"/virtio", virtio},
        {"/mmc_host/", "MMC"},
        {"/fw", "FireWire"},
        {"/target", "SCSI"},
    }};
    for (const auto &[part, bus] : buses) {
        if (devicePath.contains(part))
            return bus;
    }
    return std::nullopt;
}

std::optional<std::vector<DiskReading>> readDisks(const Files &files)
{
    const std::string_view folder = "/sys/block";
    auto names = files.names(folder);
    if (names.empty() && !files.exists(folder))
        return std::nullopt;
    std::ranges::sort(names);
    std::vector<DiskReading> disks;
    for (const std::string &name : names) {
        if (auto disk = readDisk(files, name))
            disks.push_back(std::move(*disk));
    }
    return disks;
}

std::optional<bool> isInternal(const Files &files, std::string device)
{
    constexpr int mostLayers = 8; // encryption on a logical volume on an array of disks …
    for (int layer = 0; layer < mostLayers; ++layer) {
        const std::string folder = "/sys/class/block/" + device;
        const auto path = files.linkTarget(folder);
        if (!path)
            return std::nullopt;
        if (hasHardware(*path))
            return interconnectOf(*path) != usb;
        const auto below = files.names(folder + "/slaves");
        if (below.empty())
            return std::nullopt;
        device = *std::ranges::min_element(below);
    }
    return std::nullopt;
}

} // namespace quillmark::platform
