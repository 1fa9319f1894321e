// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>

namespace quillmark::json {

/// True of an ASCII character that stands for itself within a JSON string.
constexpr bool isPlain(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte < 0x80 && c != '"' && c != '\\';
}

/// How many characters at the start of `text` stand for themselves.
constexpr std::size_t plainLength(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && isPlain(text[length]))
        ++length;
    return length;
}

/// The length of the UTF-8 sequence at the start of `text`; 0 when it is not one (overlong, surrogate, beyond
/// U+10FFFF, cut short, or empty).
std::size_t utf8SequenceLength(std::string_view text);

} // namespace quillmark::json
