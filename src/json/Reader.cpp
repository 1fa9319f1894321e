// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "json/Reader.h"

#include "json/Characters.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>

#include <locale.h>
#ifdef __has_include
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif
#endif

namespace quillmark::json {

namespace {

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// std::from_chars for double is missing from the libc++ of older Macs, and strtod follows the process's
/// locale.
double toDouble(const std::string &digits)
{
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(digits.c_str(), nullptr, c);
}

} // namespace

Reader::Reader(std::string_view text)
    : m_input(text)
{}

Token Reader::next()
{
    if (m_state == State::Failed) // stays at the fault, be it a space
        return Token::Error;
    skipSpace();
    const char c = m_position < m_input.size() ? m_input[m_position] : '\0';
    switch (m_state) {
    case State::Value:
        return value();
    case State::ValueOrEnd:
        return c == ']' ? end(']') : value();
    case State::KeyOrEnd:
        return c == '}' ? end('}') : key();
    case State::Key:
        return key();
    case State::Colon:
        if (c != ':')
            return fail("a colon is missing after the member's name");
        ++m_position;
        m_state = State::Value;
        return next();
    case State::CommaOrEnd: {
        const char open = m_open.back();
        if (c == (open == '{' ? '}' : ']'))
            return end(c);
        if (c != ',')
            return fail(open == '{' ? "a comma or the end of the object is missing"
                                    : "a comma or the end of the array is missing");
        ++m_position;
        m_state = open == '{' ? State::Key : State::Value;
        return next();
    }
    case State::Done:
        return m_position == m_input.size() ? Token::End : fail("something follows the end of the value");
    case State::Failed:
        break;
    }
    return Token::Error;
}

Token Reader::value()
{
    if (m_position == m_input.size())
        return fail("the text ends too early");
    switch (const char c = m_input[m_position]; c) {
    case '{':
    case '[':
        return begin(c);
    case '"':
        return string() ? finishValue(Token::String) : Token::Error;
    case 't':
        return literal("true", Token::True);
    case 'f':
        return literal("false", Token::False);
    case 'n':
        return literal("null", Token::Null);
    default:
        return readNumber();
    }
}

Token Reader::key()
{
    if (m_position == m_input.size())
        return fail("the text ends too early");
    if (m_input[m_position] != '"')
        return fail("a member's name in quotation marks is missing");
    if (!string())
        return Token::Error;
    m_state = State::Colon;
    return Token::Key;
}

Token Reader::begin(char bracket)
{
    if (m_open.size() == maximumDepth)
        return fail("values are nested too deep");
    ++m_position;
    m_open.push_back(bracket);
    m_state = bracket == '{' ? State::KeyOrEnd : State::ValueOrEnd;
    return bracket == '{' ? Token::BeginObject : Token::BeginArray;
}

Token Reader::end(char bracket)
{
    ++m_position;
    m_open.pop_back();
    return finishValue(bracket == '}' ? Token::EndObject : Token::EndArray);
}

Token Reader::finishValue(Token token)
{
    m_state = m_open.empty() ? State::Done : State::CommaOrEnd;
    return token;
}

Token Reader::literal(std::string_view word, Token token)
{
    if (!m_input.substr(m_position).starts_with(word))
        return fail("this is no value");
    m_position += word.size();
    return finishValue(token);
}

Token Reader::readNumber()
{
    const std::size_t start = m_position;
    std::size_t at = start;
    const auto digits = [&] {
        const std::size_t first = at;
        while (at < m_input.size() && isDigit(m_input[at]))
            ++at;
        return at > first;
    };
    const auto have = [&](std::string_view any) {
        return at < m_input.size() && any.find(m_input[at]) != std::string_view::npos;
    };

    if (have("-"))
        ++at;
    const bool leadingZero = have("0");
    const std::size_t firstDigit = at;
    if (!digits())
        return fail("this is no value");
    if (leadingZero && at > firstDigit + 1)
        return fail("a number begins with a needless zero");
    bool integral = true;
    if (have(".")) {
        integral = false;
        ++at;
        if (!digits())
            return fail("a number lacks digits after its point");
    }
    if (have("eE")) {
        integral = false;
        ++at;
        if (have("+-"))
            ++at;
        if (!digits())
            return fail("a number lacks digits in its exponent");
    }

    m_text = m_input.substr(start, at - start);
    m_double = toDouble(std::string(m_text));
    if (!std::isfinite(m_double))
        return fail("a number is too large");
    if (integral)
        integral = std::from_chars(m_text.data(), m_text.data() + m_text.size(), m_integer).ec == std::errc();
    m_position = at;
    return finishValue(integral ? Token::Integer : Token::Double);
}

/// Reads the string at the position. What needs no unescaping stays a view of the input.
bool Reader::string()
{
    ++m_position;
    std::size_t start = m_position;
    bool copied = false;
    for (;;) {
        m_position += plainLength(m_input.substr(m_position));
        if (m_position == m_input.size()) {
            fail("the text ends within a string");
            return false;
        }
        const char c = m_input[m_position];
        if (c == '"')
            break;
        if (c == '\\') {
            if (!copied)
                m_unescaped.clear();
            copied = true;
            m_unescaped.append(m_input, start, m_position - start);
            if (!escape())
                return false;
            start = m_position;
        } else if (const std::size_t length = utf8SequenceLength(m_input.substr(m_position)); length > 1) {
            m_position += length;
        } else {
            fail(length == 1 ? "a control character stands in a string" : "the text is not valid UTF-8");
            return false;
        }
    }
    m_text = m_input.substr(start, m_position - start);
    if (copied)
        m_text = m_unescaped.append(m_text);
    ++m_position;
    return true;
}

bool Reader::escape()
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const char c = m_position + 1 < m_input.size() ? m_input[m_position + 1] : '\0';
    if (const auto letter = letters.find(c); letter != std::string_view::npos) {
        m_unescaped.push_back(meanings[letter]);
        m_position += 2;
        return true;
    }
    std::uint32_t unit = 0;
    if (!hexadecimal(unit))
        return false;
    if (unit >= 0xD800 && unit < 0xDC00) {
        std::uint32_t low = 0;
        if (!hexadecimal(low))
            return false;
        if (low < 0xDC00 || low >= 0xE000) {
            fail("half of a surrogate pair is missing");
            return false;
        }
        unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    } else if (unit >= 0xDC00 && unit < 0xE000) {
        fail("half of a surrogate pair is missing");
        return false;
    }
    appendUtf8(m_unescaped, unit);
    return true;
}

bool Reader::hexadecimal(std::uint32_t &unit)
{
    const auto text = m_input.substr(m_position, 6);
    if (text.size() == 6 && text.starts_with("\\u")) {
        const auto result = std::from_chars(text.data() + 2, text.data() + 6, unit, 16);
        if (result.ec == std::errc() && result.ptr == text.data() + 6) {
            m_position += 6;
            return true;
        }
    }
    fail("an escape in a string is not one of JSON's");
    return false;
}

void Reader::skipSpace()
{
    while (m_position < m_input.size()) {
        const char c = m_input[m_position];
        if (c != ' ' && c != '\n' && c != '\t' && c != '\r')
            return;
        ++m_position;
    }
}

Token Reader::fail(const char *reason)
{
    m_reason = reason;
    m_state = State::Failed;
    return Token::Error;
}

Error Reader::error() const
{
    if (m_state != State::Failed)
        return {};
    const auto before = m_input.substr(0, m_position);
    const auto lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    const auto lines = std::ranges::count(before, '\n');
    return {.reason = m_reason,
            .line = static_cast<std::size_t>(lines) + 1,
            .column = m_position - lineStart + 1};
}

} // namespace quillmark::json
