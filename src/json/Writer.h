// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace quillmark::json {

/// Builds a JSON text value by value, in the order of the calls. The caller keeps objects and arrays
/// balanced, and names each member of an object before its value.
class Writer
{
public:
    enum class Layout { Compact, Indented };

    /// A text of up to `expectedSize` bytes is written without growing.
    explicit Writer(Layout layout = Layout::Indented, std::size_t expectedSize = 0)
        : m_buffer(expectedSize, '\0')
        , m_layout(layout)
    {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    void key(std::string_view name);

    /// UTF-8; a byte that is not part of valid UTF-8 is written as U+FFFD.
    void string(std::string_view text);
    /// UTF-16; half of a surrogate pair is written as U+FFFD.
    void string(std::u16string_view text);
    void integer(std::int64_t number);
    void integer(std::uint64_t number);
    /// In the fewest digits that read back as the same double, and never as an integer. What JSON cannot say
    /// (infinity, not a number) is null.
    void number(double number);
    void boolean(bool value);
    void null();

    void member(std::string_view name, std::string_view text) { key(name), string(text); }
    void member(std::string_view name, const char *text) { key(name), string(text); }
    void member(std::string_view name, std::u16string_view text) { key(name), string(text); }
    void member(std::string_view name, std::same_as<bool> auto value) { key(name), boolean(value); }
    void member(std::string_view name, double value) { key(name), number(value); }
    void member(std::string_view name, std::signed_integral auto value)
    {
        key(name);
        integer(std::int64_t{value});
    }

    /// The text so far; complete once every object and array has ended.
    std::string text() const { return m_buffer.substr(0, m_size); }
    /// The text, out of a writer that is used no more.
    std::string take()
    {
        m_buffer.resize(m_size);
        return std::move(m_buffer);
    }

private:
    void open(char bracket);
    void close(char bracket);
    void quoted(std::string_view text);
    void appendSpecial(std::string_view character);

    /// Separates the value (or the name of a member) from what stands before it.
    void beforeValue()
    {
        if (m_afterKey) {
            m_afterKey = false;
            return;
        }
        if (!m_first)
            append(',');
        m_first = false;
        if (m_layout == Layout::Indented && m_depth > 0)
            newLine();
    }
    void newLine();
    void append(std::string_view text) { text.copy(room(text.size()), text.size()); }
    void append(char c) { *room(1) = c; }

    /// Where to write that many more characters, which count as written.
    char *room(std::size_t size)
    {
        const auto begin = m_size;
        m_size += size;
        if (m_size > m_buffer.size())
            grow();
        return m_buffer.data() + begin;
    }
    void grow();

    std::string m_buffer; ///< the text, and room for more
    std::size_t m_size = 0;
    Layout m_layout;
    std::size_t m_depth = 0;
    bool m_first = true; ///< nothing stands in the innermost object or array yet
    bool m_afterKey = false;
};

} // namespace quillmark::json
