// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/Typesetter.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QTextOption>

#include <algorithm>

namespace quillmark::reports {

namespace {

constexpr qreal oneLine = 1e5;

} // namespace

TextBlock::TextBlock(const QString &text, const TextStyle &style, const QFont &font,
                     QPagedPaintDevice *device)
    : m_layout(text, font, device)
    , m_style(style)
{
    m_layout.setCacheEnabled(true);
}

qreal TextBlock::width() const
{
    qreal widest = 0;
    for (int i = 0; i < lineCount(); ++i)
        widest = std::max(widest, m_layout.lineAt(i).naturalTextWidth());
    return widest / m_unit;
}

void TextBlock::paint(QPainter &painter, const QPointF &corner, int first, int count) const
{
    const QPointF above(0, m_style.leading * m_unit * first);
    for (int i = first; i < std::min(first + count, lineCount()); ++i)
        m_layout.lineAt(i).draw(&painter, corner - above);
}

Typesetter::Typesetter(QPagedPaintDevice &device, QString family, Qt::LayoutDirection direction)
    : m_device(device)
    , m_family(std::move(family))
    , m_direction(direction)
    , m_unit(device.logicalDpiX() / 72.0)
{}

const Typesetter::Face &Typesetter::face(const TextStyle &style)
{
    const std::tuple key(style.size, static_cast<int>(style.weight), style.tracking);
    if (const auto known = m_faces.find(key); known != m_faces.end())
        return known->second;
    QFont font(m_family);
    font.setPointSizeF(style.size);
    font.setWeight(style.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    if (style.tracking != 0) {
        font.setLetterSpacing(QFont::PercentageSpacing, 100 + style.tracking);
    } else {
        // Any spacing of its own keeps letters from joining into ligatures, which could not be found or
        // copied: a glyph of a PDF stands for one character. This is the least there is.
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    }
    const qreal capHeight = QFontMetricsF(font, &m_device).capHeight() / m_unit;
    return m_faces.emplace(key, Face{font, capHeight}).first->second;
}

qreal Typesetter::drop(const TextStyle &style, const TextStyle &beside)
{
    return (face(beside).capHeight - face(style).capHeight) / 2;
}

std::shared_ptr<TextBlock> Typesetter::block(const QString &text, const TextStyle &style, const Shape &shape)
{
    const auto &[font, capHeight] = face(style);
    std::shared_ptr<TextBlock> result(new TextBlock(text, style, font, &m_device));
    result->m_unit = m_unit;
    result->m_column = shape.width;
    auto &layout = result->m_layout;
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(m_direction);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);

    const qreal width = shape.width * m_unit;
    const qreal middle = (style.leading + capHeight) / 2;
    const bool isAtRight = (shape.edge == Edge::Trailing) != (m_direction == Qt::RightToLeft);
    layout.beginLayout();
    for (int i = 0;; ++i) {
        auto line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        const qreal baseline = (style.leading * i + middle) * m_unit;
        const qreal spare = shape.width < oneLine ? width - line.naturalTextWidth() : 0;
        line.setPosition({isAtRight ? std::max(spare, qreal(0)) : 0, baseline - line.ascent()});
        const int end = line.textStart() + line.textLength();
        if (shape.mostLines > 0 && i + 1 == shape.mostLines && end < text.size()) {
            layout.endLayout();
            const QFontMetricsF metrics(font, &m_device);
            const auto rest = metrics.elidedText(text.mid(line.textStart()), Qt::ElideRight, width);
            return block(text.left(line.textStart()) + rest, style, {shape.width, shape.edge});
        }
    }
    layout.endLayout();
    return result;
}

TextPointer Typesetter::set(const QString &text, const TextStyle &style, const Shape &shape)
{
    return block(text, style, shape);
}

TextPointer Typesetter::set(const QString &text, const TextStyle &style)
{
    auto result = block(text, style, {.width = oneLine});
    result->m_column = result->width();
    return result;
}

} // namespace quillmark::reports
