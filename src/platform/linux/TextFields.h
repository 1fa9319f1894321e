// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/parseNumber.h" // the fields are numbers as often as words

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillmark::platform {

/// Without white space and zero bytes at both ends; texts from a device tree end with a zero byte.
std::string_view trimmed(std::string_view text);

/// Cuts off and returns what stands before the separator, or all; the separator goes too.
std::string_view takeUntil(std::string_view &rest, char separator);

/// Cuts off and returns the next word, where any number of spaces or tabs separate words; empty at the end.
std::string_view takeWord(std::string_view &rest);

/// Whether a list of words separated by spaces has the word.
bool hasWord(std::string_view words, std::string_view word);

/// What follows the last slash.
std::string_view lastComponent(std::string_view path);

/// A line "label : value" in two, both trimmed. The value is empty when there is no separator.
struct LabelledValue
{
    std::string_view label;
    std::string_view value;
};
LabelledValue splitLabel(std::string_view line, char separator);

/// The value of the first line "label=value", as in a uevent file; none when there is no such line.
std::optional<std::string_view> assignedValue(std::string_view lines, std::string_view label);

} // namespace quillmark::platform
