// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/MountTable.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillmark::platform {

namespace {

/// The kernel writes blanks, line ends and backslashes as a backslash and three octal digits.
std::string unescaped(std::string_view field)
{
    std::string text;
    while (!field.empty()) {
        const bool isEscape = field.starts_with('\\') && field.size() >= 4;
        const auto code = isEscape ? parseNumber<unsigned char>(field.substr(1, 3), 8) : std::nullopt;
        text += code ? static_cast<char>(*code) : field.front();
        field.remove_prefix(code ? 4 : 1);
    }
    return text;
}

bool isReadOnly(std::string_view options)
{
    return takeUntil(options, ',') == "ro";
}

std::optional<Mount> parseMount(std::string_view line)
{
    Mount mount;
    takeWord(line); // its number
    takeWord(line); // its parent's
    mount.device = takeWord(line);
    mount.folder = unescaped(takeWord(line));
    mount.place = unescaped(takeWord(line));
    mount.isReadOnly = isReadOnly(takeWord(line));
    // Optional fields come before the dash, as many as there are.
    const std::size_t dash = line.find(" - ");
    if (mount.place.empty() || dash == std::string_view::npos)
        return std::nullopt;
    line.remove_prefix(dash + 3);
    mount.fileSystem = takeWord(line);
    mount.source = unescaped(takeWord(line));
    mount.isReadOnly = mount.isReadOnly || isReadOnly(takeWord(line));
    return mount;
}

} // namespace

std::vector<Mount> parseMountTable(std::string_view text)
{
    std::vector<Mount> mounts;
    while (!text.empty()) {
        auto mount = parseMount(takeUntil(text, '\n'));
        if (!mount)
            continue;
        std::erase_if(mounts, [&mount](const Mount &earlier) { return earlier.place == mount->place; });
        mounts.push_back(std::move(*mount));
    }
    return mounts;
}

std::string deviceName(const Files &files, const Mount &mount)
{
    if (const auto name = files.linkName("/sys/dev/block/" + mount.device))
        return *name;
    if (!mount.source.starts_with("/dev/"))
        return {};
    return files.linkName(mount.source).value_or(std::string(lastComponent(mount.source)));
}

MountTable::MountTable(const Files &files)
    : m_file(files, "/proc/self/mountinfo")
{}

std::optional<std::vector<Mount>> MountTable::mounts() const
{
    const std::lock_guard lock(m_mutex);
    if (m_file.hasChanged()) {
        const auto text = m_file.read();
        m_mounts = text ? std::optional(parseMountTable(*text)) : std::nullopt;
    }
    return m_mounts;
}

std::optional<Mount> MountTable::root() const
{
    const auto all = mounts().value_or(std::vector<Mount>());
    const auto found = std::ranges::find(all, "/", &Mount::place);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

} // namespace quillmark::platform
