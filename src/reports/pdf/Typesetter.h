// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QFont>
#include <QPointF>
#include <QString>
#include <QTextLayout>

#include <map>
#include <memory>
#include <tuple>

class QPainter;
class QPagedPaintDevice;

// Lengths are in points, 1/72 inch, unless they say otherwise.

namespace quillmark::reports {

struct TextStyle
{
    qreal size;
    QFont::Weight weight;
    design::Role color;
    qreal leading;      ///< from line to line
    qreal tracking = 0; ///< percent of a glyph’s width, added to it
};

class TextBlock;
using TextPointer = std::shared_ptr<const TextBlock>;

enum class Edge { Leading, Trailing };

/// A text broken into lines of one width.
class TextBlock
{
public:
    int lineCount() const { return static_cast<int>(m_layout.lineCount()); }
    qreal height() const { return m_style.leading * lineCount(); }
    /// Of the widest line.
    qreal width() const;
    /// Of the column that it was set for; of the text itself when it was set in one line.
    qreal column() const { return m_column; }
    const TextStyle &style() const { return m_style; }

    /// Draws `count` of the lines, from `first` on, below `corner`, the block's upper left one in the
    /// device's own units. Capitals stand in the middle of their line, whichever font the glyphs come from.
    void paint(QPainter &painter, const QPointF &corner, int first, int count) const;

private:
    friend class Typesetter;
    TextBlock(const QString &text, const TextStyle &style, const QFont &font, QPagedPaintDevice *device);

    QTextLayout m_layout;
    TextStyle m_style;
    qreal m_column = 0;
    qreal m_unit = 1; ///< device units in a point
};

/// Breaks texts into lines for one device, in one family of fonts. Glyphs that the family lacks come from
/// others.
class Typesetter
{
public:
    /// `device` must outlive it.
    Typesetter(QPagedPaintDevice &device, QString family, Qt::LayoutDirection direction);

    struct Shape
    {
        qreal width; ///< of a line; words longer than it are broken
        Edge edge = Edge::Leading;
        int mostLines = 0; ///< the last one ends with an ellipsis when there is more; 0: as many as it takes
    };

    TextPointer set(const QString &text, const TextStyle &style, const Shape &shape);
    /// In one line.
    TextPointer set(const QString &text, const TextStyle &style);

    /// How much lower a text has to stand than one of the style `beside` with as long a leading, for both to
    /// share a base line.
    qreal drop(const TextStyle &style, const TextStyle &beside);

private:
    std::shared_ptr<TextBlock> block(const QString &text, const TextStyle &style, const Shape &shape);

    struct Face
    {
        QFont font;
        qreal capHeight;
    };
    const Face &face(const TextStyle &style);

    QPagedPaintDevice &m_device;
    QString m_family;
    Qt::LayoutDirection m_direction;
    qreal m_unit;
    std::map<std::tuple<qreal, int, qreal>, Face> m_faces; ///< by size, weight and tracking
};

} // namespace quillmark::reports
