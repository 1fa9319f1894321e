// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "json/Writer.h"

#include "json/Characters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quillmark::json {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD"; // U+FFFD

std::string escape(char c)
{
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    case '\r':
        return "\\r";
    default:
        constexpr std::string_view digits = "0123456789abcdef";
        const auto code = static_cast<unsigned char>(c);
        return {'\\', 'u', '0', '0', digits[code >> 4], digits[code & 0xF]};
    }
}

/// Whether the sequence is one of the control characters beyond ASCII, which steer terminals as those below
/// do.
bool isControl(std::string_view sequence)
{
    return sequence.size() == 2 && sequence[0] == '\xC2' && static_cast<unsigned char>(sequence[1]) < 0xA0;
}

} // namespace

void Writer::key(std::string_view name)
{
    beforeValue();
    quoted(name);
    append(':');
    if (m_layout == Layout::Indented)
        append(' ');
    m_afterKey = true;
}

void Writer::string(std::string_view text)
{
    beforeValue();
    quoted(text);
}

void Writer::string(std::u16string_view text)
{
    beforeValue();
    append('"');
    for (std::string character;;) {
        const auto plain = copyPlain(text, room(text.size()));
        m_size -= text.size() - plain;
        text.remove_prefix(plain);
        if (text.empty())
            break;
        character.clear();
        appendUtf8(character, takeCodePoint(text));
        appendSpecial(character);
    }
    append('"');
}

void Writer::integer(std::int64_t number)
{
    beforeValue();
    append(std::to_string(number));
}

void Writer::integer(std::uint64_t number)
{
    beforeValue();
    append(std::to_string(number));
}

void Writer::number(double number)
{
    if (!std::isfinite(number))
        return null();
    beforeValue();
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    const std::string_view text(digits.data(), static_cast<std::size_t>(result.ptr - digits.data()));
    append(text);
    if (text.find_first_of(".e") == std::string_view::npos)
        append(".0"); // without it a reader would take it for an integer
}

void Writer::boolean(bool value)
{
    beforeValue();
    append(value ? "true" : "false");
}

void Writer::null()
{
    beforeValue();
    append("null");
}

void Writer::open(char bracket)
{
    beforeValue();
    append(bracket);
    ++m_depth;
    m_first = true;
}

void Writer::close(char bracket)
{
    --m_depth;
    if (m_layout == Layout::Indented && !m_first)
        newLine();
    append(bracket);
    m_first = false;
}

void Writer::newLine()
{
    append('\n');
    append(std::string(2 * m_depth, ' '));
}

void Writer::grow()
{
    constexpr std::size_t least = 1024;
    m_buffer.resize(std::max({m_size, 2 * m_buffer.size(), least}));
}

void Writer::quoted(std::string_view text)
{
    if (plainLength(text) == text.size()) { // as nearly all are
        char *const to = room(text.size() + 2);
        to[0] = '"';
        text.copy(to + 1, text.size());
        to[text.size() + 1] = '"';
        return;
    }
    append('"');
    for (;;) {
        const std::size_t plain = plainLength(text);
        append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const std::size_t length = utf8SequenceLength(text);
        appendSpecial(length == 0 ? replacement : text.substr(0, length));
        text.remove_prefix(length == 0 ? 1 : length);
    }
    append('"');
}

/// One character that may not stand for itself.
void Writer::appendSpecial(std::string_view character)
{
    if (character.size() == 1)
        append(escape(character[0]));
    else if (isControl(character))
        append(escape(character[1])); // U+0080 to U+009F: their second byte is their number
    else
        append(character);
}

} // namespace quillmark::json
