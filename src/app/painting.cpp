// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/painting.h"

#include "app/Appearance.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <numeric>
#include <vector>

namespace quillmark::app {

using design::Role;

namespace {

/// Remembers whether the focus came to its widget by keys.
class FocusWatch final : public QObject
{
public:
    FocusWatch()
        : QObject(qApp)
    {
        qApp->installEventFilter(this);
    }

    bool cameByKeys() const { return m_cameByKeys; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn && object->isWidgetType()) {
            const auto reason = static_cast<QFocusEvent *>(event)->reason();
            // A window that comes to the front, or a menu that closes, leaves things as they were.
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
                m_cameByKeys = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                               reason == Qt::ShortcutFocusReason;
        }
        return false;
    }

private:
    bool m_cameByKeys = false;
};

QPointer<FocusWatch> focusWatch;

qreal digitWidth(const QFontMetricsF &metrics)
{
    qreal widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

/// A digit, or what stands between digits: letters are kept together, since some scripts join them.
struct Piece
{
    QString text;
    qreal advance = 0;
    qreal shift = 0; ///< from where the piece begins to where it is drawn
};

std::vector<Piece> pieces(const QFontMetricsF &metrics, const QString &text)
{
    // With words that run from right to left the order is the text engine's business.
    if (text.isRightToLeft())
        return {{text, metrics.horizontalAdvance(text)}};
    const qreal cell = digitWidth(metrics);
    std::vector<Piece> result;
    bool joins = false;
    for (const auto character : text) {
        if (character.isDigit())
            result.push_back({character, cell, (cell - metrics.horizontalAdvance(character)) / 2});
        else if (joins)
            result.back().text += character;
        else
            result.push_back({character});
        joins = !character.isDigit();
    }
    for (auto &piece : result) {
        if (piece.advance == 0)
            piece.advance = metrics.horizontalAdvance(piece.text);
    }
    return result;
}

qreal widthOf(const std::vector<Piece> &pieces)
{
    return std::accumulate(pieces.begin(), pieces.end(), 0.0,
                           [](qreal sum, const Piece &piece) { return sum + piece.advance; });
}

} // namespace

void watchFocus()
{
    if (!focusWatch)
        focusWatch = new FocusWatch;
}

bool hasKeyboardFocus(const QWidget &widget)
{
    return widget.hasFocus() && focusWatch && focusWatch->cameByKeys();
}

void paintFocusRing(QPainter &painter, const QRectF &inside, qreal radius)
{
    constexpr qreal width = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Appearance::current().color(design::Role::Accent), width));
    painter.drawRoundedRect(inside.adjusted(width / 2, width / 2, -width / 2, -width / 2), radius, radius);
    painter.restore();
}

QColor over(const QColor &ground, const QColor &color, qreal share)
{
    const auto mixed = [share](float below, float above) {
        return below + (above - below) * static_cast<float>(share);
    };
    return QColor::fromRgbF(mixed(ground.redF(), color.redF()), mixed(ground.greenF(), color.greenF()),
                            mixed(ground.blueF(), color.blueF()), ground.alphaF());
}

void paintBox(QPainter &painter, const QRectF &rectangle, qreal radius, const QColor &fill,
              const QColor &border)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(fill) : Qt::NoBrush);
    if (border.isValid()) {
        painter.setPen(QPen(border, 1));
        painter.drawRoundedRect(rectangle.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    } else {
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(rectangle, radius, radius);
    }
    painter.restore();
}

void paintCardPart(QPainter &painter, const QRectF &row, CardEdges edges, Role ground)
{
    const auto &appearance = Appearance::current();
    const auto card = row.adjusted(0, edges.first ? 0 : -2 * cardRadius, 0, edges.last ? 0 : 2 * cardRadius);
    painter.save();
    painter.setClipRect(row, Qt::IntersectClip);
    paintBox(painter, card, cardRadius, appearance.color(ground), appearance.color(Role::CardBorder));
    painter.restore();
}

void paintHairline(QPainter &painter, qreal x1, qreal x2, qreal y, const QColor &color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    QPen pen(color, 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLine(QLineF(x1, y, x2, y));
    painter.restore();
}

void drawTabular(QPainter &painter, const QRectF &rectangle, Qt::Alignment alignment, const QString &text)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const auto line = pieces(metrics, text);
    const qreal width = widthOf(line);
    painter.save();
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const qreal below = rectangle.height() - metrics.height();
    const qreal top = alignment & Qt::AlignVCenter ? below / 2 : alignment & Qt::AlignBottom ? below : 0;
    const qreal base = rectangle.top() + top + metrics.ascent();
    qreal x = alignment & Qt::AlignRight     ? rectangle.right() - width
              : alignment & Qt::AlignHCenter ? rectangle.center().x() - width / 2
                                             : rectangle.left();
    for (const auto &piece : line) {
        painter.drawText(QPointF(x + piece.shift, base), piece.text);
        x += piece.advance;
    }
    painter.restore();
}

qreal tabularWidth(const QFont &font, const QString &text)
{
    return widthOf(pieces(QFontMetricsF(font), text));
}

QRectF placed(const QRectF &rectangle, const QRectF &bounds, Qt::LayoutDirection direction)
{
    if (direction == Qt::LeftToRight)
        return rectangle;
    return {bounds.left() + bounds.right() - rectangle.right(), rectangle.top(), rectangle.width(),
            rectangle.height()};
}

QString isolated(const QString &machineText)
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popDirectionalIsolate(0x2069);
    return firstStrongIsolate + machineText + popDirectionalIsolate;
}

QStringList isolated(QStringList machineTexts)
{
    for (auto &text : machineTexts)
        text = isolated(text);
    return machineTexts;
}

} // namespace quillmark::app
