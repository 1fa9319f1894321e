// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/HistoryDelegate.h"

#include "app/Appearance.h"
#include "app/models/HistoryModel.h"
#include "app/painting.h"
#include "inspection/CapabilityModel.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using inspection::CapabilityStatus;
using inspection::StatusCounts;

namespace {

// In logical pixels.
constexpr int headingHeight = 38;
constexpr int rowHeight = 56;
constexpr int thirdLineHeight = 22;
constexpr int padding = 16;
constexpr int gap = 12;
constexpr int checkSize = 18;
constexpr int markSize = 14;
constexpr int markGap = 6;
constexpr int countStep = 52;
constexpr int tagHeight = 19;
constexpr QSize removeSize(32, 30);

constexpr std::array countedStatuses = {CapabilityStatus::Supported, CapabilityStatus::Unsupported,
                                        CapabilityStatus::Warning};

/// Where the parts of a row stand, from left to right.
struct Parts
{
    QRectF check;
    QRectF date;
    QRectF system;
    std::array<QRectF, countedStatuses.size()> counts;
    QRectF summary;
    QRectF remove;
};

/// Below this width, counts and summary stand in a third line.
bool isNarrow(qreal width)
{
    return width / Appearance::current().scale() < 540;
}

Parts partsOf(const QRectF &row)
{
    const auto &appearance = Appearance::current();
    const auto scaled = [&](int length) { return appearance.scaled(length); };
    const bool narrow = isNarrow(row.width());
    const qreal third = narrow ? scaled(thirdLineHeight) : 0;
    // The two lines of text, together in the middle of the row.
    const qreal dateHeight = QFontMetricsF(appearance.font(TextRole::Body, QFont::DemiBold)).height();
    const qreal systemHeight = QFontMetricsF(appearance.font(TextRole::Small)).height();
    const qreal top = row.top() + (row.height() - third - dateHeight - systemHeight) / 2;

    Parts parts;
    parts.check = {row.left() + padding, row.center().y() - scaled(checkSize) / 2.0, qreal(scaled(checkSize)),
                   qreal(scaled(checkSize))};
    parts.remove = {row.right() - padding - scaled(removeSize.width()),
                    row.center().y() - scaled(removeSize.height()) / 2.0, qreal(scaled(removeSize.width())),
                    qreal(scaled(removeSize.height()))};
    const qreal left = parts.check.right() + gap;
    const qreal counts = countedStatuses.size() * qreal(scaled(countStep));
    const qreal countsLeft = narrow ? left : std::max(row.left() + row.width() * 0.37, left + scaled(150));
    const qreal summaryLeft =
        narrow ? left + counts : std::max(countsLeft + counts, row.left() + row.width() * 0.604);
    const qreal textRight = (narrow ? parts.remove.left() : countsLeft) - gap;
    parts.date = {left, top, textRight - left, dateHeight};
    parts.system = {left, top + dateHeight, textRight - left, systemHeight};
    const qreal lineTop = narrow ? parts.system.bottom() : row.top();
    const qreal lineHeight = narrow ? third : row.height();
    for (std::size_t column = 0; column < parts.counts.size(); ++column)
        parts.counts[column] = {countsLeft + static_cast<qreal>(column) * scaled(countStep), lineTop,
                                qreal(scaled(countStep)), lineHeight};
    parts.summary = {summaryLeft, lineTop, parts.remove.left() - gap - summaryLeft, lineHeight};
    return parts;
}

QRectF removePlace(const QStyleOptionViewItem &option)
{
    return placed(partsOf(option.rect).remove, option.rect, option.direction);
}

bool isUnderMouse(const QStyleOptionViewItem &option, const QRectF &place)
{
    return option.state & QStyle::State_MouseOver && option.widget &&
           place.contains(option.widget->mapFromGlobal(QCursor::pos()));
}

void paintCheck(QPainter &painter, const QStyleOptionViewItem &option, const QRectF &place, bool isOn)
{
    QStyleOptionButton box;
    box.rect = place.toRect();
    box.palette = option.palette;
    box.state = QStyle::State_Enabled | (isOn ? QStyle::State_On : QStyle::State_Off);
    const auto *style = option.widget ? option.widget->style() : nullptr;
    if (style)
        style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter);
}

void paintDate(QPainter &painter, const QStyleOptionViewItem &option, const QRectF &place,
               const QString &date, const QString &tag)
{
    const auto &appearance = Appearance::current();
    const auto dateFont = appearance.font(TextRole::Body, QFont::DemiBold);
    const auto tagFont = appearance.font(TextRole::Small, QFont::Medium);
    const QFontMetricsF metrics(dateFont);
    const qreal tagWidth = tag.isEmpty() ? 0 : QFontMetricsF(tagFont).horizontalAdvance(tag) + 18;
    const qreal mostWidth = place.width() - (tag.isEmpty() ? 0 : tagWidth + 8);
    const auto shown = metrics.elidedText(date, Qt::ElideRight, mostWidth);
    const qreal width = metrics.horizontalAdvance(shown);
    painter.setFont(dateFont);
    painter.setPen(appearance.color(Role::Text));
    painter.drawText(
        placed({place.left(), place.top(), width + 1, place.height()}, option.rect, option.direction),
        Qt::AlignLeft | Qt::AlignVCenter, shown);
    if (tag.isEmpty())
        return;
    const qreal height = appearance.scaled(tagHeight);
    const auto pill = placed({place.left() + width + 8, place.center().y() - height / 2, tagWidth, height},
                             option.rect, option.direction);
    paintBox(painter, pill, height / 2, appearance.color(Role::Accent), {});
    painter.setFont(tagFont);
    painter.setPen(appearance.color(Role::OnAccent));
    painter.drawText(pill, Qt::AlignCenter, tag);
}

void paintCount(QPainter &painter, const QStyleOptionViewItem &option, const QRectF &place,
                CapabilityStatus status, qsizetype count)
{
    auto &appearance = Appearance::current();
    const qreal mark = appearance.scaled(markSize);
    const QRectF markPlace(place.left(), place.center().y() - mark / 2, mark, mark);
    const auto style = design::statusStyle(status);
    appearance.paintIcon(painter, placed(markPlace, option.rect, option.direction), style.symbol, style.mark);
    painter.setFont(appearance.font(TextRole::Body));
    painter.setPen(appearance.color(Role::Text2));
    const auto number = option.locale.toString(count);
    const QRectF numberPlace(markPlace.right() + markGap, place.top(), tabularWidth(painter.font(), number),
                             place.height());
    drawTabular(painter, placed(numberPlace, option.rect, option.direction), Qt::AlignLeft | Qt::AlignVCenter,
                number);
}

} // namespace

void HistoryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    painter->save();
    if (index.data(HistoryModel::HeadingRole).toBool()) {
        const auto &appearance = Appearance::current();
        painter->setFont(appearance.font(TextRole::Body, QFont::DemiBold));
        painter->setPen(appearance.color(Role::Text2));
        painter->drawText(option.rect.adjusted(2, 0, -2, -6), Qt::AlignLeft | Qt::AlignBottom,
                          index.data().toString());
    } else {
        paintScan(*painter, option, index);
    }
    painter->restore();
}

void HistoryDelegate::paintScan(QPainter &painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    auto &appearance = Appearance::current();
    const QRectF row(option.rect);
    const auto parts = partsOf(row);
    const bool isTicked = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    const CardEdges edges{index.data(HistoryModel::FirstRole).toBool(),
                          index.data(HistoryModel::LastRole).toBool()};
    paintCardPart(painter, row, edges, isTicked ? Role::AccentSoft : Role::Card);
    const auto isTickedAbove = index.siblingAtRow(index.row() - 1).data(Qt::CheckStateRole);
    if (!edges.first && !isTicked && isTickedAbove.value<Qt::CheckState>() != Qt::Checked) {
        const auto line = placed({parts.date.left(), row.top(), row.right() - padding - parts.date.left(), 0},
                                 row, option.direction);
        paintHairline(painter, line.left(), line.right(), row.top(), appearance.color(Role::Hairline));
    }

    paintCheck(painter, option, placed(parts.check, row, option.direction), isTicked);
    paintDate(painter, option, parts.date, index.data().toString(),
              index.data(HistoryModel::TagRole).toString());
    painter.setFont(appearance.font(TextRole::Small));
    painter.setPen(appearance.color(Role::Text3));
    const auto system = QFontMetricsF(painter.font())
                            .elidedText(isolated(index.data(HistoryModel::SystemRole).toString()),
                                        Qt::ElideRight, parts.system.width());
    painter.drawText(placed(parts.system, row, option.direction), Qt::AlignLeft | Qt::AlignVCenter, system);
    const auto counts = index.data(HistoryModel::CountsRole).value<StatusCounts>();
    for (std::size_t column = 0; column < countedStatuses.size(); ++column)
        paintCount(painter, option, parts.counts[column], countedStatuses[column],
                   counts.of(countedStatuses[column]));
    painter.setFont(appearance.font(TextRole::Body));
    painter.setPen(appearance.color(Role::Text2));
    const auto summary = QFontMetricsF(painter.font())
                             .elidedText(index.data(HistoryModel::SummaryRole).toString(), Qt::ElideRight,
                                         parts.summary.width());
    painter.drawText(placed(parts.summary, row, option.direction), Qt::AlignLeft | Qt::AlignVCenter, summary);

    const auto remove = removePlace(option);
    if (isUnderMouse(option, remove))
        paintBox(painter, remove, buttonRadius,
                 over(appearance.color(isTicked ? Role::AccentSoft : Role::Card),
                      appearance.color(Role::Text), 0.08),
                 {});
    QRectF icon(0, 0, appearance.scaled(16), appearance.scaled(16));
    icon.moveCenter(remove.center());
    appearance.paintIcon(painter, icon, u"trash"_s, Role::Text2);
    if (option.state & QStyle::State_HasFocus && option.widget && hasKeyboardFocus(*option.widget))
        paintFocusRing(painter, row.adjusted(2, 2, -2, -2), cardRadius - 2);
}

QSize HistoryDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto &appearance = Appearance::current();
    const int width = option.widget ? option.widget->width() : option.rect.width();
    int height = index.data(HistoryModel::HeadingRole).toBool() ? headingHeight : rowHeight;
    if (height == rowHeight && isNarrow(width))
        height += thirdLineHeight;
    return {width, appearance.scaled(height)};
}

bool HistoryDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    const auto *mouse = isRelease ? static_cast<QMouseEvent *>(event) : nullptr;
    if (!mouse || mouse->button() != Qt::LeftButton || !index.flags().testFlag(Qt::ItemIsUserCheckable))
        return false;
    if (removePlace(option).contains(mouse->position())) {
        Q_EMIT removalAsked(index);
        return true;
    }
    const bool isTicked = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    return model->setData(index, QVariant::fromValue(isTicked ? Qt::Unchecked : Qt::Checked),
                          Qt::CheckStateRole);
}

bool HistoryDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isOnButton =
        index.flags().testFlag(Qt::ItemIsUserCheckable) && removePlace(option).contains(event->pos());
    if (event->type() != QEvent::ToolTip || !isOnButton)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), tr("Delete"), view);
    return true;
}

} // namespace quillmark::app
