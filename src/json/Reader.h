// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::json {

enum class Token {
    BeginObject,
    EndObject,
    BeginArray,
    EndArray,
    Key,
    String,
    Integer,
    Double,
    True,
    False,
    Null,
    End,
    Error
};

/// Where a text stops being JSON, and why. Lines and columns count from 1, columns in bytes.
struct Error
{
    std::string reason; ///< "a comma or the end of the object is missing"
    std::size_t line = 0;
    std::size_t column = 0;
};

/// Reads JSON (RFC 8259) piece by piece, without building a tree: next() says what comes, text() or a number
/// holds it.
///
/// Strict: the text must be valid UTF-8 without a byte order mark, escapes must form whole characters,
/// nothing may follow the value. Values may be nested maximumDepth deep. After Error or End every further
/// next() gives the same.
class Reader
{
public:
    static constexpr std::size_t maximumDepth = 64;

    /// Keeps a view of `text`, which must outlive the reader.
    explicit Reader(std::string_view text);

    Token next();

    /// Of the last Key or String, or the digits of the last number; valid until the next call of next().
    std::string_view text() const { return m_text; }
    /// Of the last Integer: a number without fraction or exponent that fits 64 bits.
    std::int64_t integer() const { return m_integer; }
    /// Of the last Double or Integer.
    double number() const { return m_double; }

    /// How many bytes have been read: the end of the last token.
    std::size_t position() const { return m_position; }

    /// Of the last Error.
    Error error() const;

private:
    enum class State { Value, ValueOrEnd, KeyOrEnd, Key, Colon, CommaOrEnd, Done, Failed };

    Token value();
    Token key();
    Token begin(char bracket);
    Token end(char bracket);
    Token literal(std::string_view word, Token token);
    Token readNumber();
    Token fail(const char *reason);
    bool string();
    bool escape();
    bool hexadecimal(std::uint32_t &unit);
    Token finishValue(Token token);
    void skipSpace();

    std::string_view m_input;
    std::size_t m_position = 0;
    std::vector<char> m_open; ///< the bracket of every value that is open
    State m_state = State::Value;
    const char *m_reason = nullptr;
    std::string_view m_text;
    std::string m_unescaped;
    std::int64_t m_integer = 0;
    double m_double = 0;
};

} // namespace quillmark::json
