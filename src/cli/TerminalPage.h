// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace quillmark::cli {

struct TerminalStyle
{
    int columns = 0; ///< to lay the text out in; 0: no limit, so that no value is broken
    bool color = false;
};

/// One line of a list: a mark for the status, label, value, and a word.
struct TerminalRow
{
    inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
    QString label;
    QString value;
    QString word; ///< for what the mark says; empty where the value says it already
};

struct TerminalBlock
{
    QString title; ///< empty: the rows stand for themselves
    QList<TerminalRow> rows;
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
