// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/Screen.h"

#include "cli/TextWidth.h"

#include <algorithm>
#include <string_view>

namespace quillmark::cli {

namespace {

/// Stands in the second cell of a wide character.
constexpr char32_t covered = 0;

/// Fewer equal cells than this between two changes are sent again: to jump over them takes as many bytes.
constexpr int shortestJump = 6;

/// Colours of middle lightness: on white and on black the contrast of each is 4:1 or more, that of the note
/// 3.7:1.
std::string_view colorOf(Role role, Palette palette)
{
    const bool is256 = palette == Palette::Colors256;
    switch (role) {
    case Role::Text:
        return "";
    case Role::Strong:
        return ";1";
    case Role::Quiet:
        return ";2";
    case Role::Processor:
        return is256 ? ";38;5;63" : ";34";
    case Role::Memory:
        return is256 ? ";38;5;133" : ";35";
    case Role::NetworkIn:
    case Role::Good:
        return is256 ? ";38;5;29" : ";32";
    case Role::Pressure:
    case Role::NetworkOut:
    case Role::Warning:
        return is256 ? ";38;5;130" : ";33";
    case Role::Note:
        return is256 ? ";38;5;67" : ";36";
    case Role::Alarm:
        return is256 ? ";38;5;161" : ";31";
    }
    return "";
}

void addUtf8(std::string &bytes, char32_t c)
{
    const auto add = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    if (c < 0x80) {
        add(c);
        return;
    }
    if (c < 0x800) {
        add(0xC0 | (c >> 6));
    } else {
        if (c < 0x10000) {
            add(0xE0 | (c >> 12));
        } else {
            add(0xF0 | (c >> 18));
            add(0x80 | ((c >> 12) & 0x3F));
        }
        add(0x80 | ((c >> 6) & 0x3F));
    }
    add(0x80 | (c & 0x3F));
}

} // namespace

void Screen::begin(int columns, int rows)
{
    if (columns != m_columns || rows != m_rows)
        forget();
    m_columns = columns;
    m_rows = rows;
    m_cells.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), Cell());
}

void Screen::put(int row, int column, char32_t character, Role role)
{
    if (row < 0 || row >= m_rows || column < 0 || column >= m_columns)
        return;
    // An empty cell has no colour, so that none need be sent for it.
    m_cells[static_cast<std::size_t>(row * m_columns + column)] = {character & 0xFFFFFF,
                                                                   character == U' ' ? Role::Text : role};
}

int Screen::put(int row, int column, const QString &text, Role role, int width)
{
    const int end = std::min(m_columns, column + width);
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = takeCharacter(text, at);
        const int cells = characterWidth(c);
        if (column + cells > end)
            break;
        if (cells == 0)
            continue;
        put(row, column, c, role);
        if (cells == 2)
            put(row, column + 1, covered, role);
        column += cells;
    }
    return column;
}

std::string Screen::update()
{
    std::string bytes;
    if (m_shown.size() != m_cells.size()) {
        bytes = "\x1b[0m\x1b[2J";
        m_role = Role::Text;
        m_shown.assign(m_cells.size(), Cell());
    }
    for (int row = 0; row < m_rows; ++row)
        updateRow(row, bytes);
    if (m_role != Role::Text) {
        bytes += "\x1b[0m";
        m_role = Role::Text;
    }
    m_shown.swap(m_cells);
    return bytes;
}

void Screen::updateRow(int row, std::string &bytes)
{
    const auto start = static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns);
    const Cell *cells = m_cells.data() + start;
    const Cell *shown = m_shown.data() + start;
    if (std::equal(cells, cells + m_columns, shown))
        return;
    const auto isCovered = [](const Cell &cell) { return cell.character == covered; };
    if (std::any_of(cells, cells + m_columns, isCovered) ||
        std::any_of(shown, shown + m_columns, isCovered)) {
        // Half of a wide character cannot be replaced.
        addCells(row, 0, m_columns, bytes);
        return;
    }
    int column = 0;
    while (column < m_columns) {
        if (cells[column] == shown[column]) {
            ++column;
            continue;
        }
        int end = column + 1; // after the last cell that differs
        for (int at = end; at < m_columns && at - end < shortestJump; ++at) {
            if (cells[at] != shown[at])
                end = at + 1;
        }
        addCells(row, column, end, bytes);
        column = end;
    }
}

void Screen::addCells(int row, int from, int to, std::string &bytes)
{
    bytes += "\x1b[" + std::to_string(row + 1) + ';' + std::to_string(from + 1) + 'H';
    for (int column = from; column < to; ++column) {
        const Cell &cell = m_cells[static_cast<std::size_t>(row * m_columns + column)];
        if (cell.character == covered)
            continue;
        if (cell.role != m_role && m_palette != Palette::None && cell.character != U' ') {
            bytes += "\x1b[0";
            bytes += colorOf(cell.role, m_palette);
            bytes += 'm';
            m_role = cell.role;
        }
        addUtf8(bytes, cell.character);
    }
}

} // namespace quillmark::cli
