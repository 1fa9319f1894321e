// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxDisplays.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <compare>
#include <cstring>
#include <string>
#include <string_view>

namespace quillmark::platform {

namespace {

constexpr std::string_view folder = "/sys/class/drm/";
constexpr std::string_view prefix = "card";

/// A folder "card1-HDMI-A-2" in its parts, which order the connectors.
struct Connector
{
    unsigned card = 0;
    std::string kind; ///< "HDMI-A"
    unsigned number = 0;

    auto operator<=>(const Connector &) const = default;

    std::string name() const { return kind + '-' + std::to_string(number); }
    std::string path() const
    {
        return std::string(folder) + std::string(prefix) + std::to_string(card) + '-' + name();
    }
};

std::optional<Connector> parseConnector(std::string_view name)
{
    name.remove_prefix(prefix.size());
    const auto card = parseNumber<unsigned>(takeUntil(name, '-'));
    const auto dash = name.rfind('-');
    if (!card || dash == std::string_view::npos)
        return std::nullopt;
    const auto number = parseNumber<unsigned>(name.substr(dash + 1));
    if (!number)
        return std::nullopt;
    return Connector{.card = *card, .kind = std::string(name.substr(0, dash)), .number = *number};
}

std::vector<Connector> connectorsOf(const Files &files)
{
    std::vector<Connector> connectors;
    for (const std::string &name : files.names(folder, prefix)) {
        if (auto connector = parseConnector(name))
            connectors.push_back(std::move(*connector));
    }
    std::ranges::sort(connectors);
    return connectors;
}

std::optional<Bytes> bytesOf(const Files &files, const std::string &path)
{
    const auto text = files.text(path);
    if (!text || text->empty())
        return std::nullopt;
    Bytes bytes(text->size());
    std::memcpy(bytes.data(), text->data(), text->size());
    return bytes;
}

} // namespace

LinuxDisplays::LinuxDisplays(const Files &files)
    : m_files(files)
{}

std::optional<std::vector<DisplayReading>> LinuxDisplays::displays() const
{
    std::vector<DisplayReading> displays;
    for (const Connector &connector : connectorsOf(m_files)) {
        const std::string path = connector.path();
        if (m_files.value(path + "/status") != "connected" || m_files.value(path + "/enabled") != "enabled")
            continue;
        DisplayReading display;
        display.connector = connector.name();
        display.edid = bytesOf(m_files, path + "/edid");
        displays.push_back(std::move(display));
    }
    // A system without graphics has no such folder; one that shows no devices at all says nothing of
    // displays.
    if (displays.empty() && !m_files.exists("/sys/class"))
        return std::nullopt;
    return displays;
}

} // namespace quillmark::platform
