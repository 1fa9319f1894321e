// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace quillmark::cli {

/// What a cell of the screen means, for which a palette has its colour.
enum class Role : std::uint8_t {
    Text,
    Strong,
    Quiet, ///< captions, axes, tracks
    Processor,
    Memory,
    Pressure,
    NetworkIn,
    NetworkOut,
    Good,
    Note,
    Warning,
    Alarm,
};

enum class Palette { None, Colors16, Colors256 };

/// A screen of character cells, drawn in memory. Only what changed is sent to the terminal.
class Screen
{
public:
    explicit Screen(Palette palette)
        : m_palette(palette)
    {}

    /// Begins a picture of that size: all cells are empty.
    void begin(int columns, int rows);

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }

    /// Writes one line of text from a cell on; what lies beyond the screen, or beyond `width` columns, is cut
    /// off. A cell holds one character: accents have to be part of it (normalization form C). The column
    /// after the text.
    int put(int row, int column, const QString &text, Role role = Role::Text, int width = unlimited);
    void put(int row, int column, char32_t character, Role role);

    /// What a terminal has to be sent to show the picture, in UTF-8; empty when it shows it already.
    std::string update();

    /// The terminal has been emptied.
    void forget() { m_shown.clear(); }

    static constexpr int unlimited = 10000;

private:
    struct Cell
    {
        char32_t character : 24 = U' ';
        Role role : 8 = Role::Text;

        bool operator==(const Cell &) const = default;
    };

    void updateRow(int row, std::string &bytes);
    void addCells(int row, int from, int to, std::string &bytes);

    Palette m_palette;
    int m_columns = 0;
    int m_rows = 0;
    std::vector<Cell> m_cells;
    std::vector<Cell> m_shown; ///< of the same size, or empty when nothing is known of the terminal
    Role m_role = Role::Text;  ///< that the terminal writes in
};

} // namespace quillmark::cli
