// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/RootDevice.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>

namespace quillmark::platform {

namespace {

constexpr std::string_view deviceFolder = "/sys/class/block/";

struct RootMount
{
    std::string number; ///< "8:2"
    std::string source; ///< "/dev/sda2"
};

/// What is seen at "/": of several mounts the last.
RootMount parseRootMount(std::string_view mounts)
{
    RootMount root;
    while (!mounts.empty()) {
        // Mount, parent, number of the device, folder in it, place, options, further fields, a dash, kind of
        // file system, source.
        std::string_view line = takeUntil(mounts, '\n');
        std::array<std::string_view, 5> words;
        for (std::string_view &word : words)
            word = takeWord(line);
        const std::size_t dash = line.find(" - ");
        if (words[4] != "/" || dash == std::string_view::npos)
            continue;
        line.remove_prefix(dash + 3);
        takeWord(line);
        root = {std::string(words[2]), std::string(takeWord(line))};
    }
    return root;
}

/// "CRYPT-LUKS2-" of "CRYPT-LUKS2-0123…-name"; empty for a mapping that does not encrypt.
std::string_view encryptionKind(std::string_view identifier)
{
    constexpr std::string_view prefix = "CRYPT-";
    if (!identifier.starts_with(prefix))
        return {};
    const auto kind = identifier.substr(0, identifier.find('-', prefix.size()) + 1);
    // These two check what is read, and hide nothing.
    return kind == "CRYPT-VERITY-" || kind == "CRYPT-INTEGRITY-" ? std::string_view() : kind;
}

std::optional<std::string> encryptionOf(const Files &files, const std::string &device, int depth)
{
    constexpr int deepest = 8;
    const std::string folder = std::string(deviceFolder) + device;
    const auto identifier = files.value(folder + "/dm/uuid").value_or(std::string());
    if (const auto kind = encryptionKind(identifier); !kind.empty())
        return std::string(kind);
    auto parts = files.names(folder + "/slaves");
    // A partition lies in the folder of its disk, which may be put together from others.
    if (parts.empty())
        parts = files.names(folder + "/../slaves");
    std::optional<std::string> kind;
    for (const std::string &part : parts) {
        kind = depth < deepest ? encryptionOf(files, part, depth + 1) : std::nullopt;
        if (!kind)
            break;
    }
    return kind;
}

} // namespace

std::optional<std::string> rootDevice(const Files &files)
{
    const RootMount root = parseRootMount(files.text("/proc/self/mountinfo").value_or(std::string()));
    if (!root.number.empty()) {
        if (auto name = files.linkName("/sys/dev/block/" + root.number))
            return name;
    }
    // A file system over several devices has a number of its own.
    if (!root.source.starts_with("/dev/"))
        return std::nullopt;
    auto name = files.linkName(root.source).value_or(std::string(lastComponent(root.source)));
    return !name.empty() && files.exists(std::string(deviceFolder) + name) ? std::optional(std::move(name))
                                                                           : std::nullopt;
}

std::optional<std::string> encryptionOf(const Files &files, const std::string &device)
{
    return encryptionOf(files, device, 0);
}

} // namespace quillmark::platform
