// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/pdf/Canvas.h"

#include "reports/pdf/Typesetter.h"

#include <QPainter>

namespace quillmark::reports {

Canvas::Canvas(QPainter &painter, design::Icons &icons, qreal unit, qreal pageWidth,
               Qt::LayoutDirection direction)
    : m_painter(painter)
    , m_icons(icons)
    , m_unit(unit)
    , m_pageWidth(pageWidth)
    , m_isMirrored(direction == Qt::RightToLeft)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void Canvas::text(const TextBlock &text, qreal x, qreal top, int first, int count)
{
    m_painter.setPen(m_theme.color(text.style().color));
    text.paint(m_painter, placed({x, top, text.column(), 0}).topLeft(), first, count);
}

void Canvas::rule(qreal left, qreal right, qreal y, qreal thickness, design::Role role)
{
    m_painter.fillRect(placed({left, y, right - left, thickness}), m_theme.color(role));
}

void Canvas::panel(const QRectF &rectangle, qreal radius, design::Role role)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_theme.color(role));
    m_painter.drawRoundedRect(placed(rectangle), radius * m_unit, radius * m_unit);
}

void Canvas::icon(const QRectF &square, const QString &symbol, design::Role role)
{
    m_icons.paint(m_painter, placed(square), symbol, m_theme.color(role));
}

void Canvas::ring(const QRectF &square, qreal stroke, const std::vector<design::RingArc> &arcs)
{
    design::paintRing(m_painter, placed(square), stroke * m_unit, arcs, m_theme);
}

QRectF Canvas::placed(const QRectF &rectangle) const
{
    const qreal x = m_isMirrored ? m_pageWidth - rectangle.right() : rectangle.left();
    return {x * m_unit, rectangle.top() * m_unit, rectangle.width() * m_unit, rectangle.height() * m_unit};
}

} // namespace quillmark::reports
