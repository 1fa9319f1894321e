// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <Qt>

class QFont;
class QPainter;
class QWidget;

namespace quillmark::app {

/// Radii of corners, in logical pixels.
inline constexpr qreal cardRadius = 12;
inline constexpr qreal buttonRadius = 8;
inline constexpr int buttonPadding = 12; ///< between a button's word and its edge

/// Begins to remember how the focus came to where it is. Once there is a QApplication; more calls do nothing.
void watchFocus();

/// Whether keys brought the focus here, so that it has to be seen.
bool hasKeyboardFocus(const QWidget &widget);

/// The ring around what has the keyboard's focus: 2 wide, along the inner edge of `inside`.
void paintFocusRing(QPainter &painter, const QRectF &inside, qreal radius);

/// The colour over its ground, `share` of it: hovering takes 8 % of the text colour, pressing 12 %.
QColor over(const QColor &ground, const QColor &color, qreal share);

/// Fills a rounded rectangle and draws its border, 1 wide, inside it. An invalid colour leaves that part out.
void paintBox(QPainter &painter, const QRectF &rectangle, qreal radius, const QColor &fill,
              const QColor &border);

/// Which rows of a card a list's row is.
struct CardEdges
{
    bool first = false;
    bool last = false;
};

/// The part of a card that lies behind one row of a list: its sides, and its top and bottom at the ends.
void paintCardPart(QPainter &painter, const QRectF &row, CardEdges edges, design::Role ground);

/// A line as thin as the screen can draw, from (x1, y) to (x2, y).
void paintHairline(QPainter &painter, qreal x1, qreal x2, qreal y, const QColor &color);

/// Draws each digit in a cell as wide as the widest one, so that figures in a column stand below each other
/// and changing ones do not jump.
void drawTabular(QPainter &painter, const QRectF &rectangle, Qt::Alignment alignment, const QString &text);
qreal tabularWidth(const QFont &font, const QString &text);

/// The rectangle where it stands in a layout of this direction: mirrored within `bounds` from right to left.
QRectF placed(const QRectF &rectangle, const QRectF &bounds, Qt::LayoutDirection direction);

/// What the machine calls something, kept from being reordered by a text around it that runs the other way.
QString isolated(const QString &machineText);
QStringList isolated(QStringList machineTexts); ///< each of them

} // namespace quillmark::app
