// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/folding.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QPointF>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace quillmark::app {

/// A text set in lines no wider than `width`, at most so many of them: the last one ends with an ellipsis
/// where there is more. It runs the way that its own letters do, and stands at the leading edge of the
/// layout.
class WrappedText
{
public:
    /// `runs`: the way of a text that is made of several, which no letter of them tells.
    WrappedText(const QString &text, const QFont &font, qreal width, int mostLines,
                Qt::LayoutDirection runs = Qt::LayoutDirectionAuto);

    qreal height() const { return m_height; }
    bool isElided() const { return m_isElided; }

    /// `corner` is the upper left one of the place, `width` wide. Parts of the text are shaded in the colour
    /// `shade`.
    void draw(QPainter &painter, QPointF corner, Qt::LayoutDirection direction, const QColor &color,
              const QList<language::TextRange> &shaded = {}, const QColor &shade = {}) const;

private:
    void layOut(const QString &text, int mostLines);

    QTextLayout m_layout;
    qreal m_width;
    qreal m_height = 0;
    bool m_isElided = false;
};

} // namespace quillmark::app
