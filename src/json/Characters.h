// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
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

/// The same of UTF-16.
constexpr bool isPlain(char16_t c)
{
    return c < 0x80 && isPlain(static_cast<char>(c));
}

/// True when isPlain() is of all the four units at `text`.
inline bool areFourPlain(const char16_t *text)
{
    constexpr std::uint64_t ones = 0x0001000100010001;
    constexpr std::uint64_t tops = 0x8000 * ones;
    std::uint64_t units = 0;
    std::memcpy(&units, text, sizeof units);
    const auto isBeyondAscii = units & 0xFF80 * ones;
    const auto isSmaller = units - 0x20 * ones;
    const auto isQuotationMark = (units ^ '"' * ones) - ones;
    const auto isBackslash = (units ^ '\\' * ones) - ones;
    return (isBeyondAscii | ((isSmaller | isQuotationMark | isBackslash) & tops)) == 0;
}

/// Copies the characters at the start of `text` that stand for themselves. How many.
inline std::size_t copyPlain(std::u16string_view text, char *to)
{
    std::size_t length = 0;
    for (; text.size() - length >= 4 && areFourPlain(text.data() + length); length += 4) {
        for (std::size_t i = length; i < length + 4; ++i)
            to[i] = static_cast<char>(text[i]);
    }
    for (; length < text.size() && isPlain(text[length]); ++length)
        to[length] = static_cast<char>(text[length]);
    return length;
}

void appendUtf8(std::string &text, std::uint32_t codePoint);

/// Takes the first character off a text that is not empty; U+FFFD for half of a surrogate pair.
std::uint32_t takeCodePoint(std::u16string_view &text);

/// The length of the UTF-8 sequence at the start of `text`; 0 when it is not one (overlong, surrogate, beyond
/// U+10FFFF, cut short, or empty).
std::size_t utf8SequenceLength(std::string_view text);

} // namespace quillmark::json
