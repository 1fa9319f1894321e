// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxCapture.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

namespace quillmark::platform {

namespace {

constexpr std::string_view videoFolder = "/sys/class/video4linux/";
constexpr std::string_view videoPrefix = "video";

/// The numbers of the video nodes, ascending.
std::vector<unsigned> videoNodes(const Files &files)
{
    std::vector<unsigned> nodes;
    for (const std::string &name : files.names(videoFolder, videoPrefix)) {
        if (const auto number = parseNumber<unsigned>(std::string_view(name).substr(videoPrefix.size())))
            nodes.push_back(*number);
    }
    std::ranges::sort(nodes);
    return nodes;
}

/// A camera has a node for its pictures and, after it, others for what goes with them. Nodes of other drivers
/// are tuners, codecs and loops.
bool isCamera(const Files &files, const std::string &node)
{
    return files.number(node + "/index") == 0 && files.linkName(node + "/device/driver") == "uvcvideo";
}

using Cards = std::map<unsigned, SoundCard>;

/// By the card's number. " 0 [PCH            ]: HDA-Intel - HDA Intel PCH", then a line about its place.
Cards cardsFrom(std::string_view lines)
{
    Cards cards;
    while (!lines.empty()) {
        std::string_view line = takeUntil(lines, '\n');
        const auto number = parseNumber<unsigned>(takeWord(line));
        const std::size_t end = line.find("]: ");
        if (!number || !trimmed(line).starts_with('[') || end == std::string_view::npos)
            continue;
        std::string_view name = line.substr(end + 3);
        if (const std::size_t driver = name.find(" - "); driver != std::string_view::npos)
            name.remove_prefix(driver + 3);
        cards[*number].name = trimmed(name);
    }
    return cards;
}

/// "00-03: HDMI 0 : HDMI 0 : playback 1 : capture 1"
void addDirections(Cards &cards, std::string_view lines)
{
    while (!lines.empty()) {
        std::string_view line = takeUntil(lines, '\n');
        const auto number = parseNumber<unsigned>(takeUntil(line, '-'));
        const auto card = number ? cards.find(*number) : cards.end();
        if (card == cards.end())
            continue;
        while (!line.empty()) {
            const std::string_view field = trimmed(takeUntil(line, ':'));
            card->second.playback = card->second.playback || field.starts_with("playback ");
            card->second.capture = card->second.capture || field.starts_with("capture ");
        }
    }
}

} // namespace

LinuxCapture::LinuxCapture(const Files &files)
    : m_files(files)
{}

std::optional<std::vector<CameraReading>> LinuxCapture::cameras() const
{
    std::vector<CameraReading> cameras;
    const std::vector<unsigned> nodes = videoNodes(m_files);
    // Without any video device there is no folder either.
    if (nodes.empty() && !m_files.exists("/sys/class"))
        return std::nullopt;
    for (const unsigned number : nodes) {
        const std::string node = std::string(videoFolder).append(videoPrefix) + std::to_string(number);
        if (isCamera(m_files, node))
            cameras.push_back({.localizedName = m_files.value(node + "/name").value_or(std::string())});
    }
    return cameras;
}

std::optional<std::vector<SoundCard>> LinuxCapture::soundCards() const
{
    const auto lines = m_files.text("/proc/asound/cards");
    if (!lines) {
        // A kernel without sound has no folder; a container may hide what is in it.
        const bool hasSound = m_files.exists("/proc/asound") || !m_files.exists("/proc/stat");
        return hasSound ? std::nullopt : std::optional(std::vector<SoundCard>());
    }
    Cards cards = cardsFrom(*lines);
    if (const auto devices = cards.empty() ? std::nullopt : m_files.text("/proc/asound/pcm"))
        addDirections(cards, *devices);
    std::vector<SoundCard> list;
    for (auto &[number, card] : cards)
        list.push_back(std::move(card));
    return list;
}

} // namespace quillmark::platform
