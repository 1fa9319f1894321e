// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxGraphics.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace quillmark::platform {

namespace {

constexpr std::string_view folder = "/sys/class/drm/";
constexpr std::string_view prefix = "card";

/// The maker by its number in the PCI list, in capital hexadecimal as the kernel writes it; empty for others.
std::string_view makerOf(std::string_view vendor)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 9> makers = {{{"8086", "Intel"},
                                                                                      {"1002", "AMD"},
                                                                                      {"10DE", "NVIDIA"},
                                                                                      {"1AF4", "virtio"},
                                                                                      {"15AD", "VMware"},
                                                                                      {"1234", "QEMU"},
                                                                                      {"1B36", "Red Hat"},
                                                                                      {"106B", "Apple"},
                                                                                      {"1414", "Microsoft"}}};
    const auto maker =
        std::ranges::find(makers, vendor, &std::pair<std::string_view, std::string_view>::first);
    return maker == makers.end() ? std::string_view() : maker->second;
}

/// The numbers of the cards, ascending. Their connectors ("card0-HDMI-A-1") stand in the same folder.
std::vector<unsigned> cardsOf(const Files &files)
{
    std::vector<unsigned> cards;
    for (const std::string &name : files.names(folder, prefix)) {
        if (const auto number = parseNumber<unsigned>(std::string_view(name).substr(prefix.size())))
            cards.push_back(*number);
    }
    std::ranges::sort(cards);
    return cards;
}

std::string nameFrom(std::string_view uevent)
{
    const std::string driver(assignedValue(uevent, "DRIVER").value_or(std::string_view()));
    const std::string_view id = assignedValue(uevent, "PCI_ID").value_or(std::string_view());
    const std::string maker(makerOf(id.substr(0, id.find(':'))));
    if (maker.empty() || driver.empty())
        return maker + driver;
    return maker + " (" + driver + ")";
}

} // namespace

LinuxGraphics::LinuxGraphics(const Files &files)
    : m_files(files)
{}

GraphicsReading LinuxGraphics::read() const
{
    GraphicsReading reading;
    for (const unsigned card : cardsOf(m_files)) {
        const std::string path =
            std::string(folder) + std::string(prefix) + std::to_string(card) + "/device/uevent";
        GraphicsDevice device;
        if (const auto uevent = m_files.value(path))
            device.name = nameFrom(*uevent);
        if (!device.name.empty())
            reading.devices.push_back(std::move(device));
    }
    return reading;
}

} // namespace quillmark::platform
