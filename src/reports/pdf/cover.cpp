// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/cover.h"

#include "language/Formats.h"
#include "reports/pdf/Canvas.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

using design::Role;

/// Parts of a block one below the other.
class Stack
{
public:
    void space(qreal height) { m_height += height; }

    void add(const Block &part)
    {
        m_parts.push_back({m_height, part});
        m_height += part.height;
    }

    /// A text over the whole width of the page; nothing when it is empty.
    void add(const QString &text, const TextStyle &style, int mostLines, Typesetter &typesetter,
             const Sheet &sheet)
    {
        if (text.isEmpty())
            return;
        const qreal width = sheet.right() - sheet.left();
        const auto block = typesetter.set(text, style, {.width = width, .mostLines = mostLines});
        add({block->height(),
             [block, x = sheet.left()](Canvas &canvas, qreal top) { canvas.text(*block, x, top); }});
    }

    Block block() const
    {
        return {m_height, [parts = m_parts](Canvas &canvas, qreal top) {
                    for (const auto &[offset, part] : parts)
                        part.paint(canvas, top + offset);
                }};
    }

private:
    std::vector<std::pair<qreal, Block>> m_parts;
    qreal m_height = 0;
};

Block brand(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet)
{
    constexpr qreal size = 30;
    constexpr qreal artworkInset = 3; // the artwork has air around it, which would look like an indent
    const auto name = typesetter.set(document.name, styles::brand);
    const auto date = typesetter.set(document.date, styles::aside);
    return {size, [=](Canvas &canvas, qreal top) {
                canvas.icon({sheet.left() - artworkInset, top, size, size}, u"app-icon"_s, Role::Accent);
                canvas.text(*name, sheet.left() + size + 5, top + (size - name->height()) / 2);
                canvas.text(*date, sheet.right() - date->width(), top + (size - date->height()) / 2);
            }};
}

/// The ring with the score in its middle.
Block ring(const ReportDocument &document, Typesetter &typesetter, qreal x, qreal size)
{
    const qreal scale = size / airy.ring;
    const TextStyle digits{27 * scale, QFont::Bold, Role::Text, 32};
    const TextStyle sign{15 * scale, QFont::DemiBold, Role::Text, 32};
    const auto score = typesetter.set(document.score, digits);
    const auto percent = typesetter.set(document.score == u"–" ? QString() : u"%"_s, sign);
    const qreal drop = typesetter.drop(sign, digits);
    const auto rows = [&](inspection::CapabilityStatus status) {
        return std::ranges::find(document.counts, status, &ReportDocument::Count::status)->rows;
    };
    using inspection::CapabilityStatus;
    const auto arcs = design::scoreRing(rows(CapabilityStatus::Supported), rows(CapabilityStatus::Warning),
                                        rows(CapabilityStatus::Unsupported));
    const bool isMirrored = document.direction == Qt::RightToLeft;
    return {size, [=](Canvas &canvas, qreal top) {
                canvas.ring({x, top, size, size}, 10 * scale, arcs);
                const qreal lineTop = top + (size - score->height()) / 2;
                const qreal between = percent->width() > 0 ? 0.5 : 0;
                const qreal left = x + (size - score->width() - between - percent->width()) / 2;
                // "64%" in either direction
                canvas.text(*score, isMirrored ? left + percent->width() + between : left, lineTop);
                canvas.text(*percent, isMirrored ? left : left + score->width() + between, lineTop + drop);
            }};
}

/// Marks, figures and words, two by two.
Block counts(const ReportDocument &document, Typesetter &typesetter, qreal x)
{
    constexpr qreal pitch = 19.5;
    constexpr qreal mark = 11;
    constexpr qreal figureAt = mark + 6.5;
    struct Cell
    {
        design::StatusStyle look;
        TextPointer figure;
        TextPointer word;
    };
    const language::Formats formats(document.language);
    std::vector<Cell> cells;
    qreal figureWidth = 13; // of two digits
    for (const auto &count : document.counts) {
        cells.push_back({design::statusStyle(count.status),
                         typesetter.set(formats.count(count.rows), styles::count),
                         typesetter.set(count.word, styles::countWord)});
        figureWidth = std::max(figureWidth, cells.back().figure->width());
    }
    const qreal wordAt = figureAt + figureWidth + 8.5;
    std::array<qreal, 2> columns = {0, 112};
    for (std::size_t i = 0; i < cells.size(); i += 2)
        columns[1] = std::max(columns[1], wordAt + cells[i].word->width() + 24);

    const std::size_t lines = (cells.size() + 1) / 2;
    return {pitch * static_cast<qreal>(lines), [=](Canvas &canvas, qreal top) {
                for (std::size_t i = 0; i < cells.size(); ++i) {
                    const qreal left = x + columns[i % 2];
                    const std::size_t line = i / 2;
                    const qreal lineTop = top + pitch * static_cast<qreal>(line);
                    const auto &[look, figure, word] = cells[i];
                    const qreal textTop = lineTop + (pitch - word->height()) / 2;
                    canvas.icon({left, lineTop + (pitch - mark) / 2, mark, mark}, look.symbol, look.mark);
                    canvas.text(*figure, left + figureAt, textTop);
                    canvas.text(*word, left + wordAt, textTop);
                }
            }};
}

Block scorePanel(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet,
                 const CoverSpacing &spacing)
{
    constexpr qreal indent = 26;
    const qreal textLeft = sheet.left() + indent + spacing.ring + indent;
    const qreal textWidth = sheet.right() - indent - textLeft;
    const auto title = typesetter.set(document.scoreTitle, styles::panelTitle, {.width = textWidth});
    const auto text = typesetter.set(document.scoreText, styles::panelText, {.width = textWidth});
    const auto circle = ring(document, typesetter, sheet.left() + indent, spacing.ring);
    const auto figures = counts(document, typesetter, textLeft);
    constexpr qreal belowTitle = 2.5;
    constexpr qreal aboveFigures = 9;
    const qreal textHeight = title->height() + belowTitle + text->height() + aboveFigures + figures.height;
    const qreal height = std::max(circle.height, textHeight) + 2 * spacing.panelPadding;
    return {height, [=](Canvas &canvas, qreal top) {
                canvas.panel({sheet.left(), top, sheet.right() - sheet.left(), height}, 12, Role::Window);
                circle.paint(canvas, top + (height - circle.height) / 2);
                qreal y = top + (height - textHeight) / 2;
                canvas.text(*title, textLeft, y);
                y += title->height() + belowTitle;
                canvas.text(*text, textLeft, y);
                figures.paint(canvas, y + text->height() + aboveFigures);
            }};
}

/// Side by side, each below a rule.
Block facts(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet)
{
    constexpr qreal gap = 24;
    constexpr qreal belowRule = 7.5;
    constexpr qreal belowLabel = 1.5;
    constexpr int columns = 3;
    const qreal width = (sheet.right() - sheet.left() - gap * (columns - 1)) / columns;
    std::vector<std::pair<TextPointer, TextPointer>> texts;
    qreal height = 0;
    for (const auto &fact : document.facts) {
        texts.emplace_back(typesetter.set(fact.label, styles::factLabel, {.width = width, .mostLines = 2}),
                           typesetter.set(fact.value, styles::fact, {.width = width, .mostLines = 3}));
        const auto &[label, value] = texts.back();
        height = std::max(height, belowRule + label->height() + belowLabel + value->height());
    }
    return {height, [=, left = sheet.left()](Canvas &canvas, qreal top) {
                qreal x = left;
                for (const auto &[label, value] : texts) {
                    canvas.rule(x, x + width, top, 0.5, Role::CardBorder);
                    canvas.text(*label, x, top + belowRule);
                    canvas.text(*value, x, top + belowRule + label->height() + belowLabel);
                    x += width + gap;
                }
            }};
}

} // namespace

Group headline(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet,
               const CoverSpacing &spacing)
{
    Stack stack;
    stack.add(brand(document, typesetter, sheet));
    stack.space(spacing.aboveName);
    stack.add(document.question, styles::question, 2, typesetter, sheet);
    stack.space(2.5);
    stack.add(document.machine, styles::machine, 3, typesetter, sheet);
    stack.space(6.5);
    stack.add(document.hardware, styles::hardware, 3, typesetter, sheet);
    stack.space(spacing.abovePanel);
    stack.add(scorePanel(document, typesetter, sheet, spacing));
    if (!document.facts.isEmpty()) {
        stack.space(spacing.aboveFacts);
        stack.add(facts(document, typesetter, sheet));
    }
    return {.heading = stack.block(), .isOnCover = true};
}

} // namespace quillmark::reports
