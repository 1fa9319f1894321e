// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/RowDelegate.h"

#include "app/Appearance.h"
#include "app/WrappedText.h"
#include "app/models/CapabilityListModel.h"
#include "app/painting.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using inspection::CapabilityStatus;

namespace {

// In logical pixels.
constexpr int padding = 16;
constexpr int markSize = 16;
constexpr int gap = 12;
constexpr int rowHeight = 44;
constexpr int textPadding = 8; ///< above and below texts of two lines
constexpr qreal labelShare = 0.36;
constexpr int mostLines = 2;
constexpr int pillHeight = 22;
constexpr int pillPadding = 10;
constexpr float shadeOpacity = 0.22F; ///< of what a search found

constexpr int headingIcon = 17;
constexpr int headingHeight = 18;
constexpr int aboveHeading = 18; ///< where rows stand above it
constexpr int belowHeading = 9;

bool isHeading(const QModelIndex &index)
{
    return index.data(CapabilityListModel::HeadingRole).toBool();
}

CapabilityStatus statusOf(const QModelIndex &index)
{
    return static_cast<CapabilityStatus>(index.data(CapabilityListModel::StatusRole).toInt());
}

/// Where the parts of a row stand, from left to right, and its texts as they are set there.
class SetRow
{
public:
    SetRow(const QModelIndex &index, qreal width)
        : word(index.data(CapabilityListModel::StatusWordRole).toString())
        , textLeft(padding + Appearance::current().scaled(markSize) + gap)
        , valueLeft(textLeft + labelShare * width)
        , wordWidth(word.isEmpty() ? 0 : wordWidthOf(word))
        , valueWidth(width - padding - (word.isEmpty() ? 0 : wordWidth + gap) - valueLeft)
        , label(index.data().toString(), Appearance::current().font(TextRole::Body, QFont::Medium),
                labelShare * width - gap, mostLines)
        , value(index.data(CapabilityListModel::ValueRole).toString(),
                Appearance::current().font(TextRole::Body), valueWidth, mostLines)
    {}

    int height() const
    {
        const int texts = qCeil(std::max(label.height(), value.height()));
        return std::max(Appearance::current().scaled(rowHeight), texts + 2 * textPadding);
    }

    QString word;
    qreal textLeft;
    qreal valueLeft;
    qreal wordWidth; ///< with the ground around it, which only some words have
    qreal valueWidth;
    WrappedText label;
    WrappedText value;

private:
    static qreal wordWidthOf(const QString &word)
    {
        const QFontMetricsF metrics(Appearance::current().font(TextRole::Small, QFont::Medium));
        return metrics.horizontalAdvance(word) + 2 * pillPadding;
    }
};

QColor searchShade()
{
    auto color = Appearance::current().color(Role::Accent);
    color.setAlphaF(shadeOpacity);
    return color;
}

void paintHeading(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    auto &appearance = Appearance::current();
    const QRectF bounds(option.rect);
    const auto line = bounds.adjusted(2, index.row() == 0 ? 0 : aboveHeading, 0, -belowHeading);
    const qreal icon = appearance.scaled(headingIcon);
    appearance.paintIcon(
        painter, placed({line.left(), line.center().y() - icon / 2, icon, icon}, bounds, option.direction),
        index.data(CapabilityListModel::SymbolRole).toString(), Role::Accent);

    const auto titleFont = appearance.font(TextRole::Body, QFont::DemiBold);
    const auto title = index.data().toString();
    const qreal titleLeft = line.left() + icon + 8;
    const qreal titleWidth = QFontMetricsF(titleFont).horizontalAdvance(title) + 1;
    const WrappedText set(title, titleFont, titleWidth, 1);
    const QRectF titlePlace(titleLeft, line.center().y() - set.height() / 2, titleWidth, set.height());
    set.draw(painter, placed(titlePlace, bounds, option.direction).topLeft(), option.direction,
             appearance.color(Role::Text),
             index.data(CapabilityListModel::LabelMatchesRole).value<QList<language::TextRange>>(),
             searchShade());

    painter.setFont(appearance.font(TextRole::Small));
    painter.setPen(appearance.color(Role::Text3));
    const auto count = QLocale().toString(index.data(CapabilityListModel::CountRole).toInt());
    const QRectF countPlace(titleLeft + titleWidth + 8, line.top(), tabularWidth(painter.font(), count),
                            line.height());
    drawTabular(painter, placed(countPlace, bounds, option.direction), Qt::AlignLeft | Qt::AlignVCenter,
                count);
}

bool isSelected(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return index.isValid() && view && view->selectionModel()->isSelected(index);
}

void paintSeparator(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                    qreal left)
{
    const auto below = index.siblingAtRow(index.row() + 1);
    if (index.data(CapabilityListModel::LastRole).toBool() || isSelected(option, index) ||
        isSelected(option, below))
        return;
    const QRectF row(option.rect);
    const auto line = placed(row.adjusted(left, 0, -padding, 0), row, option.direction);
    paintHairline(painter, line.left(), line.right(), row.bottom() - 1,
                  Appearance::current().color(Role::Hairline));
}

void paintWord(QPainter &painter, const QRectF &place, const QString &word, CapabilityStatus status,
               Qt::LayoutDirection direction, const QRectF &row)
{
    const auto &appearance = Appearance::current();
    const auto style = design::statusStyle(status);
    const bool isException = status == CapabilityStatus::Warning || status == CapabilityStatus::Unsupported;
    const auto shown = placed(place, row, direction);
    if (isException)
        paintBox(painter, shown, place.height() / 2, appearance.color(style.soft), {});
    painter.setFont(isException ? appearance.font(TextRole::Small, QFont::Medium)
                                : appearance.font(TextRole::Small));
    painter.setPen(appearance.color(isException ? style.text : Role::Text3));
    painter.drawText(placed(place.adjusted(0, 0, -pillPadding, 0), row, direction),
                     Qt::AlignRight | Qt::AlignVCenter, word);
}

} // namespace

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    if (isHeading(index)) {
        paintHeading(*painter, option, index);
        painter->restore();
        return;
    }
    auto &appearance = Appearance::current();
    const QRectF row(option.rect);
    const SetRow set(index, row.width());
    paintCardPart(*painter, row,
                  {.first = index.data(CapabilityListModel::FirstRole).toBool(),
                   .last = index.data(CapabilityListModel::LastRole).toBool()},
                  option.state & QStyle::State_Selected ? Role::AccentSoft : Role::Card);
    paintSeparator(*painter, option, index, set.textLeft);

    const qreal mark = appearance.scaled(markSize);
    const auto status = statusOf(index);
    const auto style = design::statusStyle(status);
    const auto at = [&](qreal left, qreal width, qreal height) {
        return QRectF(row.left() + left, row.center().y() - height / 2, width, height);
    };
    appearance.paintIcon(*painter, placed(at(padding, mark, mark), row, option.direction), style.symbol,
                         style.mark);

    const auto drawText = [&](const WrappedText &text, qreal left, qreal width, int matches) {
        const auto place = placed(at(left, width, text.height()), row, option.direction);
        text.draw(*painter, place.topLeft(), option.direction, appearance.color(Role::Text),
                  index.data(matches).value<QList<language::TextRange>>(), searchShade());
    };
    drawText(set.label, set.textLeft, labelShare * row.width() - gap, CapabilityListModel::LabelMatchesRole);
    drawText(set.value, set.valueLeft, set.valueWidth, CapabilityListModel::ValueMatchesRole);
    if (!set.word.isEmpty()) {
        const auto place =
            at(row.width() - padding - set.wordWidth, set.wordWidth, appearance.scaled(pillHeight));
        paintWord(*painter, place, set.word, status, option.direction, row);
    }
    if (option.state & QStyle::State_HasFocus && option.widget && hasKeyboardFocus(*option.widget))
        paintFocusRing(*painter, row.adjusted(3, 3, -3, -3), buttonRadius);
    painter->restore();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto &appearance = Appearance::current();
    if (isHeading(index)) {
        const int line = std::max(appearance.scaled(headingHeight),
                                  QFontMetrics(appearance.font(TextRole::Body, QFont::DemiBold)).height());
        return {0, line + belowHeading + (index.row() == 0 ? 0 : aboveHeading)};
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return {0, SetRow(index, view ? view->viewport()->width() : option.rect.width()).height()};
}

bool RowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                            const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid() || isHeading(index))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const SetRow set(index, option.rect.width());
    QStringList texts;
    if (set.label.isElided())
        texts += index.data().toString();
    if (set.value.isElided())
        texts += index.data(CapabilityListModel::ValueRole).toString();
    QToolTip::showText(event->globalPos(), texts.join(u'\n'), view, view->visualRect(index));
    return true;
}

} // namespace quillmark::app
