// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/OsRelease.h"

#include "platform/linux/TextFields.h"

#include <array>
#include <cstdint>

namespace quillmark::platform {

namespace {

/// The value as the shell would take it. In double quotes a backslash escapes only what is special there.
std::string unquoted(std::string_view text)
{
    constexpr std::string_view specialInQuotes = "\"\\$`";
    std::string value;
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        const bool hasNext = i + 1 < text.size();
        if (quote == 0 && (letter == '"' || letter == '\''))
            quote = letter;
        else if (quote != 0 && letter == quote)
            quote = 0;
        else if (letter == '\\' && hasNext &&
                 (quote == 0 ||
                  (quote == '"' && specialInQuotes.find(text[i + 1]) != std::string_view::npos)))
            value += text[++i];
        else
            value += letter;
    }
    return value;
}

} // namespace

std::map<std::string, std::string, std::less<>> parseOsRelease(std::string_view text)
{
    std::map<std::string, std::string, std::less<>> assignments;
    while (!text.empty()) {
        const std::string_view line = trimmed(takeUntil(text, '\n'));
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos || equals == 0 || line.starts_with('#'))
            continue;
        assignments[std::string(line.substr(0, equals))] = unquoted(line.substr(equals + 1));
    }
    return assignments;
}

std::string assigned(const std::map<std::string, std::string, std::less<>> &assignments,
                     std::string_view name, std::string_view fallback)
{
    const auto entry = assignments.find(name);
    const std::string_view value = entry == assignments.end() ? std::string_view() : trimmed(entry->second);
    return std::string(value.empty() ? fallback : value);
}

OperatingSystem operatingSystemOf(const std::map<std::string, std::string, std::less<>> &osRelease)
{
    OperatingSystem system;
    system.name = assigned(osRelease, "NAME", "Linux");
    const std::string version = assigned(osRelease, "VERSION_ID");
    std::string_view rest = version;
    for (std::int32_t *part : {&system.major, &system.minor, &system.patch}) {
        const auto number = parseNumber<std::int32_t>(takeUntil(rest, '.'));
        if (!number || *number < 0)
            break;
        *part = *number;
    }
    return system;
}

} // namespace quillmark::platform
