// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxIntelligence.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace quillmark::platform {

namespace {

constexpr std::string_view accelFolder = "/sys/class/accel/";
constexpr std::string_view pciFolder = "/sys/bus/pci/devices/";
constexpr std::string_view drmFolder = "/sys/class/drm/";
constexpr std::string_view processingAccelerator = "0x1200"; // PCI base class and subclass

/// The names in the folder that are the prefix and a number, in the order of the numbers.
std::vector<std::string> numberedNames(const Files &files, std::string_view folder, std::string_view prefix)
{
    std::vector<std::pair<unsigned, std::string>> numbered;
    for (std::string &name : files.names(folder, prefix)) {
        if (const auto number = parseNumber<unsigned>(std::string_view(name).substr(prefix.size())))
            numbered.emplace_back(*number, std::move(name));
    }
    std::ranges::sort(numbered);
    std::vector<std::string> names;
    names.reserve(numbered.size());
    for (auto &[number, name] : numbered)
        names.push_back(std::move(name));
    return names;
}

std::vector<Accelerator> driverlessAccelerators(const Files &files)
{
    std::vector<std::string> names = files.names(pciFolder);
    std::ranges::sort(names);
    std::vector<Accelerator> found;
    for (std::string &name : names) {
        const std::string device = std::string(pciFolder) + name;
        const auto code = files.value(device + "/class");
        if (code && code->starts_with(processingAccelerator) && !files.linkName(device + "/driver"))
            found.push_back({.name = std::move(name)});
    }
    return found;
}

/// An empty folder of devices means that there are none only where the kernel shows its devices at all.
template <typename Device>
std::optional<std::vector<Device>> listed(const Files &files, std::vector<Device> devices)
{
    if (devices.empty() && !files.exists("/sys/class"))
        return std::nullopt;
    return devices;
}

} // namespace

LinuxIntelligence::LinuxIntelligence(const Files &files)
    : m_files(files)
{}

std::optional<std::vector<Accelerator>> LinuxIntelligence::accelerators() const
{
    std::vector<Accelerator> found;
    for (std::string &name : numberedNames(m_files, accelFolder, "accel")) {
        auto driver = m_files.linkName(std::string(accelFolder) + name + "/device/driver");
        found.push_back({.name = std::move(name), .driver = std::move(driver)});
    }
    std::ranges::move(driverlessAccelerators(m_files), std::back_inserter(found));
    return listed(m_files, std::move(found));
}

std::optional<std::vector<RenderNode>> LinuxIntelligence::renderNodes() const
{
    std::vector<RenderNode> found;
    for (std::string &name : numberedNames(m_files, drmFolder, "renderD")) {
        const std::string device = std::string(drmFolder) + name + "/device";
        const std::string node = m_files.pathOf("/dev/dri/" + name);
        found.push_back({.name = std::move(name),
                         .driver = m_files.linkName(device + "/driver"),
                         .accessible = ::access(node.c_str(), R_OK | W_OK) == 0,
                         .runtimeStatus = m_files.value(device + "/power/runtime_status")});
    }
    return listed(m_files, std::move(found));
}

} // namespace quillmark::platform
