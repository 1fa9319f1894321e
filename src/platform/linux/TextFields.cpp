// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/TextFields.h"

#include <algorithm>

namespace quillmark::platform {

namespace {

constexpr bool isGap(char c)
{
    return c == ' ' || c == '\t';
}

constexpr bool isBlank(char c)
{
    return isGap(c) || c == '\n' || c == '\r' || c == '\0';
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view takeUntil(std::string_view &rest, char separator)
{
    const std::string_view taken = rest.substr(0, rest.find(separator));
    rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
    return taken;
}

std::string_view takeWord(std::string_view &rest)
{
    const auto start = std::ranges::find_if_not(rest, isGap);
    const auto end = std::find_if(start, rest.end(), isGap);
    const std::string_view word(start, end);
    rest = std::string_view(end, rest.end());
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
