// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/TextFields.h"

#include <algorithm>

namespace quillmark::platform {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blank(" \t\r\n\0", 5);
    const std::size_t first = text.find_first_not_of(blank);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blank) - first + 1);
}

std::string_view takeUntil(std::string_view &rest, char separator)
{
    const std::string_view taken = rest.substr(0, rest.find(separator));
    rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
    return taken;
}

std::string_view takeWord(std::string_view &rest)
{
    constexpr std::string_view blank = " \t";
    rest.remove_prefix(std::min(rest.find_first_not_of(blank), rest.size()));
    const std::string_view word = rest.substr(0, rest.find_first_of(blank));
    rest.remove_prefix(word.size());
    return word;
}

bool hasWord(std::string_view words, std::string_view word)
{
    while (!words.empty()) {
        if (takeUntil(words, ' ') == word)
            return true;
    }
    return false;
}

std::string_view lastComponent(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

LabelledValue splitLabel(std::string_view line, char separator)
{
    const std::string_view label = takeUntil(line, separator);
    return {trimmed(label), trimmed(line)};
}

std::optional<std::string_view> assignedValue(std::string_view lines, std::string_view label)
{
    while (!lines.empty()) {
        const LabelledValue line = splitLabel(takeUntil(lines, '\n'), '=');
        if (line.label == label)
            return line.value;
    }
    return std::nullopt;
}

} // namespace quillmark::platform
