// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/FigureLine.h"

#include "app/painting.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillmark::app {

using design::Role;
using Part = FigureLine::Part;

namespace {

// In logical pixels.
constexpr int symbolGap = 7;
constexpr int swatchGap = 8;
constexpr int swatchSize = 12;
constexpr int unitGap = 3;

QFont fontOf(const Part &part)
{
    const auto &appearance = Appearance::current();
    return part.weight ? appearance.font(part.font, *part.weight) : appearance.font(part.font);
}

qreal symbolSize(const QFont &font)
{
    return QFontInfo(font).pixelSize();
}

qreal swatchWidth(const Part &part)
{
    const auto &appearance = Appearance::current();
    return part.swatch == Part::Swatch::Block ? appearance.scaled(swatchSize - 3)
                                              : appearance.scaled(swatchSize);
}

/// What stands before the text, with the space after it.
qreal leadWidth(const Part &part, const QFont &font)
{
    const qreal symbol = part.symbol.isEmpty() ? 0 : symbolSize(font) + symbolGap;
    return symbol + (part.swatch == Part::Swatch::None ? 0 : swatchWidth(part) + swatchGap);
}

qreal widthOf(const Part &part)
{
    const auto font = fontOf(part);
    return part.gap + leadWidth(part, font) + tabularWidth(font, part.text);
}

void paintSwatch(QPainter &painter, const QRectF &place, const Part &part)
{
    auto color = Appearance::current().color(part.symbolColor);
    color.setAlphaF(part.swatchOpacity);
    painter.save();
    constexpr qreal thickness = 2;
    const qreal middle = std::round(place.center().y());
    switch (part.swatch) {
    case Part::Swatch::None:
        break;
    case Part::Swatch::Block:
        paintBox(painter, place, 2.5, color, {});
        break;
    case Part::Swatch::Line:
        paintBox(painter, QRectF(place.left(), middle - thickness / 2, place.width(), thickness),
                 thickness / 2, color, {});
        break;
    case Part::Swatch::Area: {
        auto area = color;
        area.setAlphaF(0.24F);
        painter.fillRect(place, area);
        painter.fillRect(QRectF(place.left(), place.top(), place.width(), thickness), color);
        break;
    }
    }
    painter.restore();
}

} // namespace

FigureLine::FigureLine(Qt::Alignment alignment, QWidget *parent)
    : QWidget(parent)
    , m_alignment(alignment)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void FigureLine::setParts(std::vector<Part> parts)
{
    if (parts == m_parts)
        return;
    const auto before = sizeHint();
    m_parts = std::move(parts);
    if (sizeHint() != before)
        updateGeometry();
    update();
}

QSize FigureLine::sizeHint() const
{
    qreal width = 0;
    qreal height = 0;
    for (const auto &part : m_parts) {
        width += widthOf(part);
        height = std::max(height, QFontMetricsF(fontOf(part)).height());
    }
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
}

QSize FigureLine::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void FigureLine::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.fillRect(rect(), appearance.color(Role::Card));
    if (m_parts.empty())
        return;
    const QRectF bounds(rect());
    // All stand on the line of the largest, which is in the middle.
    qreal width = 0;
    qreal ascent = 0;
    qreal descent = 0;
    for (const auto &part : m_parts) {
        const QFontMetricsF metrics(fontOf(part));
        width += widthOf(part);
        ascent = std::max(ascent, metrics.ascent());
        descent = std::max(descent, metrics.descent());
    }
    const qreal base = std::round((bounds.height() - ascent - descent) / 2 + ascent);
    qreal x = m_alignment & Qt::AlignTrailing ? std::max(bounds.width() - width, 0.0) : 0;
    const auto place = [&](qreal left, qreal top, qreal size, qreal height) {
        return placed({left, top, size, height}, bounds, layoutDirection());
    };
    for (const auto &part : m_parts) {
        const auto font = fontOf(part);
        const QFontMetricsF metrics(font);
        x += part.gap;
        const qreal middle = base - metrics.capHeight() / 2;
        if (!part.symbol.isEmpty()) {
            const qreal size = symbolSize(font);
            appearance.paintIcon(painter, place(x, middle - size / 2, size, size), part.symbol,
                                 part.symbolColor);
            x += size + symbolGap;
        }
        if (part.swatch != Part::Swatch::None) {
            const qreal size = swatchWidth(part);
            paintSwatch(painter, place(x, std::round(middle - size / 2), size, size), part);
            x += size + swatchGap;
        }
        painter.setFont(font);
        painter.setPen(appearance.color(part.color));
        const qreal textWidth = tabularWidth(font, part.text);
        drawTabular(painter, place(x, base - metrics.ascent(), textWidth, metrics.height()), Qt::AlignLeft,
                    part.text);
        x += textWidth;
    }
}

std::vector<Part> figureParts(const QString &figure, Qt::LayoutDirection direction)
{
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    const auto first = std::ranges::find_if(figure, isDigit);
    const auto last = std::find_if(figure.rbegin(), figure.rend(), isDigit).base();
    const auto number = first < last ? QString(first, last - first) : figure;
    std::vector<Part> parts = {{.text = number, .font = TextRole::Title1}};
    const auto addWords = [&parts](auto place, const QString &text) {
        if (!text.isEmpty())
            parts.insert(place, {.text = text, .font = TextRole::Body, .weight = QFont::DemiBold});
    };
    if (first < last) {
        addWords(parts.end(), QString(last, figure.end() - last).trimmed());
        addWords(parts.begin(), QString(figure.begin(), first - figure.begin()).trimmed());
    }
    // "23%" reads the same in a layout from right to left.
    if (direction == Qt::RightToLeft && !figure.isRightToLeft())
        std::ranges::reverse(parts);
    for (auto part = parts.begin() + 1; part < parts.end(); ++part)
        part->gap = unitGap;
    return parts;
}

} // namespace quillmark::app
