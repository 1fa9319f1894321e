// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "json/Characters.h"

namespace quillmark::json {

void appendUtf8(std::string &text, std::uint32_t codePoint)
{
    const auto put = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | (codePoint >> 6));
        put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        put(0xE0 | (codePoint >> 12));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | (codePoint >> 18));
        put(0x80 | ((codePoint >> 12) & 0x3F));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
}

std::uint32_t takeCodePoint(std::u16string_view &text)
{
    constexpr std::uint32_t replacement = 0xFFFD;
    const auto isHalf = [](std::uint32_t unit, std::uint32_t first) {
        return unit >= first && unit < first + 0x400;
    };
    const std::uint32_t unit = text[0];
    const std::uint32_t next = text.size() > 1 ? text[1] : 0;
    if (isHalf(unit, 0xD800) && isHalf(next, 0xDC00)) {
        text.remove_prefix(2);
        return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
    }
    text.remove_prefix(1);
    return isHalf(unit, 0xD800) || isHalf(unit, 0xDC00) ? replacement : unit;
}

std::size_t utf8SequenceLength(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (text.empty())
        return 0;
    const unsigned first = byte(0);
    if (first < 0x80)
        return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length)
        return 0;
    const unsigned lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (byte(1) < lowest || byte(1) > highest)
        return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if (byte(i) < 0x80 || byte(i) > 0xBF)
            return 0;
    }
    return length;
}

} // namespace quillmark::json
