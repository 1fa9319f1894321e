// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/TextPool.h"

#include <functional>
#include <utility>

namespace quillmark::history {

namespace {

QString made(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

TextPool::TextPool(std::string_view input)
    : m_input(input)
    , m_table(1024)
{}

QString TextPool::text(std::string_view utf8)
{
    // Only what stands in the input stays where it is; what had to be unescaped does not.
    const auto *end = m_input.data() + m_input.size();
    if (std::less<>()(utf8.data(), m_input.data()) || !std::less<>()(utf8.data(), end))
        return made(utf8);
    auto &entry = placeOf(utf8);
    if (entry.utf8.data())
        return entry.text;
    entry = {.utf8 = utf8, .text = made(utf8)};
    const auto text = entry.text;
    if (2 * ++m_count > m_table.size())
        grow();
    return text;
}

void TextPool::grow()
{
    auto smaller = std::exchange(m_table, std::vector<Entry>(2 * m_table.size()));
    for (auto &entry : smaller) {
        if (entry.utf8.data())
            placeOf(entry.utf8) = std::move(entry);
    }
}

/// Where the text is, or would be.
TextPool::Entry &TextPool::placeOf(std::string_view utf8)
{
    const auto last = m_table.size() - 1;
    auto place = std::hash<std::string_view>()(utf8) & last;
    while (m_table[place].utf8.data() && m_table[place].utf8 != utf8)
        place = (place + 1) & last;
    return m_table[place];
}

} // namespace quillmark::history
