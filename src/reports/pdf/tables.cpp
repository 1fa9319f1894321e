// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/tables.h"

#include "language/Formats.h"
#include "reports/pdf/Canvas.h"

#include <algorithm>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

using design::Role;

constexpr qreal headingIcon = 13;
constexpr qreal headingTextAt = 20;
constexpr qreal mark = 9;
constexpr qreal labelAt = 17;
constexpr qreal valueAt = labelAt + 178;
constexpr qreal columnGap = 8;
constexpr qreal ruleThickness = 0.5;

Block heading(const QString &symbol, const QString &title, const QString &note, Typesetter &typesetter,
              qreal left, qreal right)
{
    const auto aside = typesetter.set(note, styles::caption);
    const auto text =
        typesetter.set(title, styles::heading,
                       {.width = right - left - headingTextAt - aside->width() - columnGap, .mostLines = 1});
    const qreal drop = typesetter.drop(styles::caption, styles::heading);
    return {styles::headingHeight, [=](Canvas &canvas, qreal top) {
                const qreal middle = top + 10;
                canvas.icon({left, middle - headingIcon / 2, headingIcon, headingIcon}, symbol, Role::Accent);
                canvas.text(*text, left + headingTextAt, middle - text->height() / 2);
                canvas.text(*aside, right - aside->width(), middle + drop - aside->height() / 2);
                canvas.rule(left, right, top + styles::headingHeight - 1, 1, Role::Text);
            }};
}

/// The texts of a row, each in its column.
struct RowTexts
{
    struct Cell
    {
        TextPointer text;
        qreal x;
        qreal drop = 0;
    };

    std::vector<Cell> cells;
    design::StatusStyle look;

    int lineCount() const
    {
        int lines = 1;
        for (const auto &cell : cells)
            lines = std::max(lines, cell.text->lineCount());
        return lines;
    }
};

RowTexts rowTexts(const ReportDocument::Row &row, Typesetter &typesetter, const TableMetrics &metrics)
{
    RowTexts texts{.look = design::statusStyle(row.status)};
    const auto add = [&](const QString &text, const TextStyle &style, qreal from, qreal to,
                         Edge edge = Edge::Leading) {
        texts.cells.push_back(
            {typesetter.set(text, style, {.width = to - from, .edge = edge, .mostLines = metrics.mostLines}),
             from});
    };
    const qreal value = metrics.left + valueAt;
    const qreal word = metrics.right - metrics.wordWidth;
    const qreal place = row.place.isEmpty() ? word : (value + word) / 2;
    add(row.label, styles::label, metrics.left + labelAt, value - columnGap);
    add(row.value, styles::value, value, place - columnGap);
    if (!row.place.isEmpty())
        add(row.place, styles::aside, place, word - columnGap);
    const auto wordStyle = styles::word(texts.look.text);
    add(row.word, wordStyle, word, metrics.right, Edge::Trailing);
    texts.cells.back().drop = typesetter.drop(wordStyle, styles::value);
    return texts;
}

/// Some lines of a row, `isFirst` the first ones, with its mark, and `isLast` the last, with the rule below
/// it.
Block rowBlock(const RowTexts &texts, int firstLine, int lines, const TableMetrics &metrics)
{
    const qreal leading = styles::value.leading;
    const bool isLast = firstLine + lines >= texts.lineCount();
    const qreal padding = metrics.row - leading;
    const qreal height = padding + leading * lines;
    return {height, [=](Canvas &canvas, qreal top) {
                const qreal textTop = top + (padding - ruleThickness) / 2;
                if (firstLine == 0)
                    canvas.icon({metrics.left, textTop + (leading - mark) / 2, mark, mark}, texts.look.symbol,
                                texts.look.mark);
                for (const auto &[text, x, drop] : texts.cells)
                    canvas.text(*text, x, textTop + drop, firstLine, lines);
                if (isLast)
                    canvas.rule(metrics.left, metrics.right, top + height - ruleThickness, ruleThickness,
                                Role::CardBorder);
            }};
}

void addRow(std::vector<Block> &rows, const RowTexts &texts, const TableMetrics &metrics)
{
    const qreal leading = styles::value.leading;
    const int most = std::max(1, static_cast<int>((metrics.tallest - metrics.row) / leading) + 1);
    const int all = texts.lineCount();
    for (int line = 0; line < all; line += most)
        rows.push_back(rowBlock(texts, line, std::min(most, all - line), metrics));
}

Block moreRow(const QString &text, Typesetter &typesetter, const TableMetrics &metrics)
{
    const auto block = typesetter.set(text, styles::aside);
    return {metrics.row, [=](Canvas &canvas, qreal top) {
                canvas.text(*block, metrics.left + labelAt, top + (metrics.row - block->height()) / 2);
            }};
}

/// One section’s line in the list of contents, without the number of its page.
struct ContentsEntry
{
    QString symbol;
    TextPointer title;
    TextPointer note;
};

} // namespace

Group table(const ReportDocument::Table &table, Typesetter &typesetter, const TableMetrics &metrics)
{
    Group group{
        .heading = heading(table.symbol, table.title, table.note, typesetter, metrics.left, metrics.right),
        .continued =
            heading(table.symbol, table.continuedTitle, table.note, typesetter, metrics.left, metrics.right)};
    for (const auto &row : table.rows)
        addRow(group.rows, rowTexts(row, typesetter, metrics), metrics);
    if (!table.more.isEmpty())
        group.rows.push_back(moreRow(table.more, typesetter, metrics));
    return group;
}

Group contents(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet, qreal row,
               const std::shared_ptr<std::vector<int>> &pages)
{
    constexpr qreal gap = 24;
    constexpr qreal icon = 11;
    constexpr qreal titleAt = 19;
    const language::Formats formats(document.language);
    // Before the end of the column stands the number of the page.
    const auto widestNumber = typesetter.set(document.contentsPage.arg(formats.count(88)), styles::aside);
    const qreal noteEnd = std::max(qreal(34), widestNumber->width() + 12);
    const qreal width = (sheet.right() - sheet.left() - gap) / 2;

    std::vector<ContentsEntry> entries;
    for (const auto &section : document.sections) {
        const auto note = typesetter.set(section.shortNote, styles::aside);
        const qreal titleWidth = width - titleAt - noteEnd - note->width() - columnGap;
        entries.push_back(
            {section.symbol,
             typesetter.set(section.title, styles::label, {.width = titleWidth, .mostLines = 1}), note});
    }
    const auto paintEntry = [=, &typesetter, page = document.contentsPage](Canvas &canvas, std::size_t i,
                                                                           qreal left, qreal top) {
        const auto &[symbol, title, note] = entries[i];
        const auto number =
            typesetter.set(page.arg(formats.count(static_cast<qsizetype>(pages->at(i)))), styles::aside);
        const qreal textTop = top + (row - ruleThickness - title->height()) / 2;
        canvas.icon({left, textTop + (title->height() - icon) / 2, icon, icon}, symbol, Role::Text2);
        canvas.text(*title, left + titleAt, textTop);
        canvas.text(*note, left + width - noteEnd - note->width(), textTop);
        canvas.text(*number, left + width - number->width(), textTop);
        canvas.rule(left, left + width, top + row - ruleThickness, ruleThickness, Role::CardBorder);
    };

    Group group{.heading = heading(document.contentsSymbol, document.contentsTitle, {}, typesetter,
                                   sheet.left(), sheet.right())};
    group.continued = group.heading;
    const std::size_t half = (entries.size() + 1) / 2;
    for (std::size_t i = 0; i < half; ++i) {
        group.rows.push_back({row, [=, left = sheet.left(), all = entries.size()](Canvas &canvas, qreal top) {
                                  paintEntry(canvas, i, left, top);
                                  if (half + i < all)
                                      paintEntry(canvas, half + i, left + width + gap, top);
                              }});
    }
    return group;
}

Group note(const QString &text, const TextStyle &style, Typesetter &typesetter, const Sheet &sheet)
{
    const qreal width = sheet.right() - sheet.left();
    const auto block = typesetter.set(text, style, {.width = width});
    return {.heading = {block->height(), [=, left = sheet.left()](Canvas &canvas, qreal top) {
                            canvas.text(*block, left, top);
                        }}};
}

qreal widestWord(const ReportDocument &document, Typesetter &typesetter)
{
    qreal widest = 0;
    for (const auto &count : document.counts)
        widest = std::max(widest, typesetter.set(count.word, styles::word(Role::InfoText))->width());
    return widest + 0.5; // so that it never breaks for a rounded width
}

} // namespace quillmark::reports
