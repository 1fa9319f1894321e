// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "json/Writer.h"

#include "json/Characters.h"

#include <array>
#include <charconv>
#include <cmath>

namespace quillmark::json {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD"; // U+FFFD

void appendEscape(std::string &text, char c)
{
    switch (c) {
    case '"':
        text += "\\\"";
        return;
    case '\\':
        text += "\\\\";
        return;
    case '\n':
        text += "\\n";
        return;
    case '\t':
        text += "\\t";
        return;
    case '\r':
        text += "\\r";
        return;
    default:
        constexpr std::string_view digits = "0123456789abcdef";
        text += "\\u00";
        text += digits[static_cast<unsigned char>(c) >> 4];
        text += digits[static_cast<unsigned char>(c) & 0xF];
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
    m_text += m_layout == Layout::Indented ? ": " : ":";
    m_afterKey = true;
}

void Writer::string(std::string_view text)
{
    beforeValue();
    quoted(text);
}

void Writer::integer(std::int64_t number)
{
    beforeValue();
    m_text += std::to_string(number);
}

void Writer::integer(std::uint64_t number)
{
    beforeValue();
    m_text += std::to_string(number);
}

void Writer::number(double number)
{
    if (!std::isfinite(number))
        return null();
    beforeValue();
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    const std::string_view text(digits.data(), static_cast<std::size_t>(result.ptr - digits.data()));
    m_text += text;
    if (text.find_first_of(".e") == std::string_view::npos)
        m_text += ".0"; // without it a reader would take it for an integer
}

void Writer::boolean(bool value)
{
    beforeValue();
    m_text += value ? "true" : "false";
}

void Writer::null()
{
    beforeValue();
    m_text += "null";
}

void Writer::open(char bracket)
{
    beforeValue();
    m_text += bracket;
    ++m_depth;
    m_first = true;
}

void Writer::close(char bracket)
{
    --m_depth;
    if (!m_first)
        newLine();
    m_text += bracket;
    m_first = false;
}

/// Separates the value (or the name of a member) from what stands before it.
void Writer::beforeValue()
{
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (!m_first)
        m_text += ',';
    if (m_depth > 0)
        newLine();
    m_first = false;
}

void Writer::newLine()
{
    if (m_layout == Layout::Compact)
        return;
    m_text += '\n';
    m_text.append(2 * m_depth, ' ');
}

void Writer::quoted(std::string_view text)
{
    m_text += '"';
    while (!text.empty()) {
        const std::size_t plain = plainLength(text);
        m_text.append(text, 0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const std::size_t length = utf8SequenceLength(text);
        if (length == 1)
            appendEscape(m_text, text.front());
        else if (isControl(text.substr(0, length)))
            appendEscape(m_text, text[1]); // U+0080 to U+009F: their second byte is their number
        else
            m_text += length == 0 ? replacement : text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    m_text += '"';
}

} // namespace quillmark::json
