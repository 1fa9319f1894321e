// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Icons.h"
#include "design/ScoreRing.h"
#include "design/Theme.h"

#include <QRectF>

#include <limits>
#include <vector>

class QPainter;

namespace quillmark::reports {

class TextBlock;

/// A page to draw on, in points from its upper corner on the leading side: everything is mirrored where the
/// language is written from right to left.
class Canvas
{
public:
    /// `unit`: of the painter’s device in a point. What it is given must outlive it.
    Canvas(QPainter &painter, design::Icons &icons, qreal unit, qreal pageWidth,
           Qt::LayoutDirection direction);

    /// Draws `count` lines of the text, from `first` on, with its column beginning at x.
    void text(const TextBlock &text, qreal x, qreal top, int first = 0,
              int count = std::numeric_limits<int>::max() / 2);
    /// A line below y.
    void rule(qreal left, qreal right, qreal y, qreal thickness, design::Role role);
    void panel(const QRectF &rectangle, qreal radius, design::Role role);
    void icon(const QRectF &square, const QString &symbol, design::Role role);
    void ring(const QRectF &square, qreal stroke, const std::vector<design::RingArc> &arcs);

private:
    QRectF placed(const QRectF &rectangle) const;

    QPainter &m_painter;
    design::Icons &m_icons;
    const design::Theme &m_theme = design::Theme::light();
    qreal m_unit;
    qreal m_pageWidth;
    bool m_isMirrored;
};

} // namespace quillmark::reports
