// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace quillmark::platform {

/// The number if all of the text is one that the type holds.
template <typename Number>
std::optional<Number> parseNumber(std::string_view text, int base = 10)
{
    Number number = 0;
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    const auto [stop, error] = std::from_chars(begin, end, number, base);
    return error == std::errc() && stop == end ? std::optional<Number>(number) : std::nullopt;
}

} // namespace quillmark::platform
