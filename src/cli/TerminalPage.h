// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace quillmark::cli {

struct TerminalStyle
{
    int columns = 0; ///< to lay the text out in; 0: no limit, so that no value is broken
    bool color = false;
};

/// A sign before a row, in the colour that the row's word has too.
struct TerminalMark
{
    enum class Color { Green, Red, Yellow, Blue, Faint };

    TerminalMark(QString itsSign, Color itsColor)
        : sign(std::move(itsSign))
        , color(itsColor)
    {}
    TerminalMark(inspection::CapabilityStatus status); // NOLINT: a status is its mark

    QString sign; ///< one column wide
    Color color;
};

/// One line of a list: a mark, label, value, and a word.
struct TerminalRow
{
    TerminalMark mark;
    QString label;
    QString value;
    QString word; ///< for what the mark says; empty where the value says it already
};

struct TerminalBlock
{
    QString title; ///< empty: the rows stand for themselves
    QList<TerminalRow> rows;
};

struct TerminalColumn
{
    QString heading;
    int rank = 0; ///< where there is no room for all columns those of the highest rank go first; 0 stays
};

/// A text as it is read on a terminal, built from the top down. What it is given may hold anything: it
/// neither steers the terminal nor leaves its columns.
class TerminalPage
{
public:
    enum class Weight { Plain, Bold, Faint };

    explicit TerminalPage(const TerminalStyle &style)
        : m_style(style)
    {}

    void addGap() { m_text += u'\n'; }
    void addParagraph(const QString &text, Weight weight = Weight::Plain);
    /// A heading, a bar that is filled to `share` (from 0 to 1) in the colour of the status, and the figure.
    void addBar(const QString &heading, double share, inspection::CapabilityStatus status,
                const QString &figure);
    /// Short texts with their marks, side by side where there is room.
    void addMarked(const QList<std::pair<inspection::CapabilityStatus, QString>> &texts);
    /// Rows in aligned columns, the same in all blocks so that the eye can run down the page.
    void addBlocks(const QList<TerminalBlock> &blocks);
    /// A line for each row, as many texts in each as there are columns.
    void addTable(const QList<TerminalColumn> &columns, QList<QStringList> rows);

    const QString &text() const { return m_text; }

private:
    struct Columns
    {
        int label = 0;
        int value = 0; ///< 0 when the terminal is too narrow for columns
    };

    QString styled(const QString &text, const char *codes) const;
    QStringList lined(const QString &text, int columns) const;
    Columns measure(const QList<TerminalBlock> &blocks) const;
    void addAligned(const TerminalRow &row, const Columns &columns);
    void addStacked(const TerminalRow &row);

    TerminalStyle m_style;
    QString m_text;
};

} // namespace quillmark::cli
