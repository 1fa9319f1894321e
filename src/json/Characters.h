// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quillmark::json {

/// True of an ASCII character that stands for itself within a JSON string.
constexpr bool isPlain(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte < 0x80 && c != '"' && c != '\\';
}

/// True when isPlain() is of all the eight characters at `text`.
inline bool areEightPlain(const char *text)
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t tops = 0x8080808080808080;
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, text, sizeof bytes);
    // Subtracting borrows into a byte's top bit when it is smaller. A borrow can pass from one byte to the
    // next only after it has shown in the lower one.
    const auto isSmaller = bytes - 0x20 * ones;
    const auto isQuotationMark = (bytes ^ '"' * ones) - ones;
    const auto isBackslash = (bytes ^ '\\' * ones) - ones;
    return ((bytes | isSmaller | isQuotationMark | isBackslash) & tops) == 0;
}

/// How many characters at the start of `text` stand for themselves.
inline std::size_t plainLength(std::string_view text)
{
    std::size_t length = 0;
    while (text.size() - length >= 8 && areEightPlain(text.data() + length))
        length += 8;
    while (length < text.size() && isPlain(text[length]))
        ++length;
    return length;
}

/// The length of the UTF-8 sequence at the start of `text`; 0 when it is not one (overlong, surrogate, beyond
/// U+10FFFF, cut short, or empty).
std::size_t utf8SequenceLength(std::string_view text);

} // namespace quillmark::json
