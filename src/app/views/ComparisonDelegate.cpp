// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/ComparisonDelegate.h"

#include "app/Appearance.h"
#include "app/WrappedText.h"
#include "app/models/ComparisonModel.h"
#include "app/painting.h"
#include "design/Theme.h"
#include "history/historyTexts.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <memory>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using history::ChangeKind;
using inspection::CapabilityStatus;

namespace {

// In logical pixels.
constexpr int headingHeight = 36;
constexpr int rowHeight = 44;
constexpr int padding = 16;
constexpr int gap = 12;
constexpr int markSize = 15;
constexpr int markGap = 8;
constexpr int arrowSize = 14;
constexpr int separatorLeft = 44;
constexpr int lineGap = 4;
constexpr int linePadding = 11; ///< above and below texts of several lines
constexpr int mostLines = 2;
constexpr qreal stackedBelow = 640;
constexpr qreal narrowBelow = 460;

struct ChangeStyle
{
    QString symbol;
    Role mark;
    Role word;
};

ChangeStyle styleOf(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Changed:
        return {u"arrow.right.circle"_s, Role::Text2, Role::Text2};
    case ChangeKind::Added:
        return {u"plus.circle.fill"_s, Role::AccentText, Role::AccentText};
    case ChangeKind::Removed:
        return {u"minus.circle.fill"_s, Role::Text2, Role::Text2};
    }
    return {};
}

QFont labelFont()
{
    return Appearance::current().font(TextRole::Body, QFont::Medium);
}

QFont valueFont()
{
    return Appearance::current().font(TextRole::Body);
}

using TextPointer = std::unique_ptr<WrappedText>;

/// One of the two values.
struct Side
{
    QRectF place;
    TextPointer text; ///< none: there is no such side
    CapabilityStatus status = CapabilityStatus::Info;
};

/// How a row is laid out, from left to right, at its real height.
struct Layout
{
    QRectF word;
    QRectF label;
    TextPointer labelText;
    Side before;
    Side now;
    QRectF arrow; ///< empty: none
    qreal height = 0;
};

/// As wide as the longest of the three words.
qreal wordColumn()
{
    const auto &appearance = Appearance::current();
    const QFontMetricsF metrics(appearance.font(TextRole::Small));
    qreal widest = 0;
    for (const auto kind : {ChangeKind::Changed, ChangeKind::Added, ChangeKind::Removed})
        widest = std::max(widest, metrics.horizontalAdvance(title(kind)));
    return std::max<qreal>(appearance.scaled(104), appearance.scaled(markSize) + 7 + widest);
}

class Arranger
{
public:
    Arranger(qreal width, const QModelIndex &index)
        : m_width(width)
        , m_scale(Appearance::current().scale())
        , m_index(index)
        , m_isChanged(index.data(ComparisonModel::KindRole).value<ChangeKind>() == ChangeKind::Changed)
    {}

    /// At the top left of the list.
    Layout arrange() const
    {
        auto layout = m_width / m_scale < stackedBelow ? stacked() : sideBySide();
        layout.height = std::max<qreal>(layout.height, Appearance::current().scaled(rowHeight));
        return layout;
    }

private:
    Side side(int valueRole, int statusRole, qreal left, qreal width) const
    {
        Side side{.place = {left, 0, width, QFontMetricsF(valueFont()).height()}};
        const auto value = m_index.data(valueRole);
        if (!value.isValid())
            return side;
        const qreal mark = Appearance::current().scaled(markSize) + markGap;
        side.text = std::make_unique<WrappedText>(value.toString(), valueFont(), width - mark, mostLines);
        side.place.setHeight(side.text->height());
        side.status = m_index.data(statusRole).value<CapabilityStatus>();
        return side;
    }

    void setLabel(Layout &layout, qreal left, qreal width) const
    {
        layout.labelText =
            std::make_unique<WrappedText>(m_index.data().toString(), labelFont(), width, mostLines);
        layout.label = {left, 0, width, layout.labelText->height()};
    }

    Layout sideBySide() const
    {
        const qreal arrow = Appearance::current().scaled(arrowSize);
        const qreal word = wordColumn();
        const qreal rest = m_width - 2 * padding - word - arrow - 4 * gap;
        // As the columns share a list of the usual width.
        constexpr qreal shares[] = {190, 226, 276};
        constexpr qreal all = shares[0] + shares[1] + shares[2];
        const qreal label = rest * shares[0] / all;
        const qreal before = rest * shares[1] / all;

        Layout layout;
        layout.word = {padding, 0, word, 0};
        setLabel(layout, padding + word + gap, label);
        layout.before = side(ComparisonModel::OldValueRole, ComparisonModel::OldStatusRole,
                             layout.label.right() + gap, before);
        const qreal arrowLeft = layout.before.place.right() + gap;
        layout.now = side(ComparisonModel::NewValueRole, ComparisonModel::NewStatusRole,
                          arrowLeft + arrow + gap, m_width - padding - arrowLeft - arrow - gap);
        layout.height = 2 * linePadding + std::max({layout.label.height(), layout.before.place.height(),
                                                    layout.now.place.height()});
        for (auto *place : {&layout.label, &layout.before.place, &layout.now.place})
            place->moveTop(
                (std::max<qreal>(layout.height, Appearance::current().scaled(rowHeight)) - place->height()) /
                2);
        const qreal height = std::max<qreal>(layout.height, Appearance::current().scaled(rowHeight));
        layout.word.setHeight(height);
        if (m_isChanged)
            layout.arrow = {arrowLeft, (height - arrow) / 2, arrow, arrow};
        return layout;
    }

    /// The values below each other; in a very narrow list the label below the word, too.
    Layout stacked() const
    {
        const bool narrow = m_width / m_scale < narrowBelow;
        const qreal arrow = Appearance::current().scaled(arrowSize);
        const qreal lineHeight = QFontMetricsF(valueFont()).height();
        const qreal word = wordColumn();
        const qreal first = narrow ? padding : padding + word + gap;
        const qreal rest = m_width - first - padding - gap;
        const qreal label = rest * 0.45;

        Layout layout;
        layout.word = {padding, linePadding, word, lineHeight};
        setLabel(layout, first, label);
        layout.label.moveTop(linePadding + (narrow ? lineHeight + lineGap : 0));
        const qreal values = first + label + gap;
        // The arrow hangs before the value that it leads to.
        const qreal left = values + arrow + 6;
        const qreal width = m_width - padding - left;
        layout.before = side(ComparisonModel::OldValueRole, ComparisonModel::OldStatusRole, left, width);
        layout.now = side(ComparisonModel::NewValueRole, ComparisonModel::NewStatusRole, left, width);
        layout.before.place.moveTop(linePadding);
        layout.now.place.moveTop(m_isChanged ? layout.before.place.bottom() + lineGap : linePadding);
        layout.height =
            std::max({layout.label.bottom(), layout.now.place.bottom(), layout.before.place.bottom()}) +
            linePadding;
        if (m_isChanged)
            layout.arrow = {values, layout.now.place.top() + (lineHeight - arrow) / 2, arrow, arrow};
        else // only one of them is there
            (!layout.now.text ? layout.now : layout.before).place = {};
        return layout;
    }

    qreal m_width;
    qreal m_scale;
    const QModelIndex &m_index;
    bool m_isChanged;
};

/// Paints parts of a row that were laid out from left to right at the origin.
class RowPainter
{
public:
    RowPainter(QPainter &painter, const QStyleOptionViewItem &option)
        : m_painter(painter)
        , m_row(option.rect)
        , m_direction(option.direction)
    {}

    QRectF at(const QRectF &place) const
    {
        return placed(place.translated(m_row.topLeft()), m_row, m_direction);
    }

    /// A single line.
    void text(const QRectF &place, const QString &words, const QFont &font, Role color)
    {
        m_painter.setFont(font);
        m_painter.setPen(Appearance::current().color(color));
        m_painter.drawText(at(place), Qt::AlignLeft | Qt::AlignVCenter, words);
    }

    void text(const QRectF &place, const WrappedText &words, Role color)
    {
        words.draw(m_painter, at(place).topLeft(), m_direction, Appearance::current().color(color));
    }

    void mark(const QRectF &place, const QString &symbol, Role color, int size)
    {
        const qreal side = Appearance::current().scaled(size);
        const QRectF square(place.left(), place.center().y() - side / 2, side, side);
        Appearance::current().paintIcon(m_painter, at(square), symbol, color);
    }

    void side(const Side &side, Role color)
    {
        if (side.place.isEmpty())
            return;
        if (!side.text) {
            text(side.place, u"–"_s, valueFont(), Role::Text3);
            return;
        }
        const auto style = design::statusStyle(side.status);
        const qreal line = QFontMetricsF(valueFont()).height();
        mark({side.place.left(), side.place.top(), 0, line}, style.symbol, style.mark, markSize);
        text(side.place.adjusted(Appearance::current().scaled(markSize) + markGap, 0, 0, 0), *side.text,
             color);
    }

private:
    QPainter &m_painter;
    QRectF m_row;
    Qt::LayoutDirection m_direction;
};

void paintHeading(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    auto &appearance = Appearance::current();
    const QRectF row(option.rect);
    const qreal icon = appearance.scaled(17);
    const QFontMetricsF metrics(appearance.font(TextRole::Body, QFont::DemiBold));
    const qreal line = std::max(icon, metrics.height());
    const qreal top = row.height() - 6 - line;
    const auto title = index.data().toString();
    RowPainter paint(painter, option);
    paint.mark({2, top, icon, line}, index.data(ComparisonModel::SymbolRole).toString(), Role::Accent, 17);
    const qreal left = 2 + icon + 9;
    const auto count = option.locale.toString(index.data(ComparisonModel::CountRole).toInt());
    const qreal countWidth = tabularWidth(appearance.font(TextRole::Small), count);
    const auto shown = metrics.elidedText(title, Qt::ElideRight, row.width() - left - countWidth - 10);
    const qreal width = metrics.horizontalAdvance(shown) + 1;
    paint.text({left, top + (line - metrics.height()) / 2, width, metrics.height()}, shown,
               appearance.font(TextRole::Body, QFont::DemiBold), Role::Text);
    painter.setFont(appearance.font(TextRole::Small));
    painter.setPen(appearance.color(Role::Text3));
    drawTabular(painter, paint.at({left + width + 8, top, countWidth, line}),
                Qt::AlignLeft | Qt::AlignVCenter, count);
}

void paintChange(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto &appearance = Appearance::current();
    const QRectF row(option.rect);
    const CardEdges edges{index.data(ComparisonModel::FirstRole).toBool(),
                          index.data(ComparisonModel::LastRole).toBool()};
    paintCardPart(painter, row, edges, Role::Card);
    RowPainter paint(painter, option);
    if (!edges.first) {
        const auto line = paint.at({separatorLeft, 0, row.width() - separatorLeft - padding, 0});
        paintHairline(painter, line.left(), line.right(), row.top(), appearance.color(Role::Hairline));
    }
    const auto layout = Arranger(row.width(), index).arrange();
    const auto kind = index.data(ComparisonModel::KindRole).value<ChangeKind>();
    const auto style = styleOf(kind);
    paint.mark(layout.word, style.symbol, style.mark, markSize);
    const auto wordFont = appearance.font(TextRole::Small, QFont::Medium);
    const qreal wordHeight = QFontMetricsF(wordFont).height();
    paint.text({layout.word.left() + appearance.scaled(markSize) + 7,
                layout.word.center().y() - wordHeight / 2, layout.word.width(), wordHeight},
               title(kind), wordFont, style.word);
    paint.text(layout.label, *layout.labelText, Role::Text);
    paint.side(layout.before, Role::Text2);
    if (!layout.arrow.isEmpty())
        paint.mark(layout.arrow, option.direction == Qt::RightToLeft ? u"arrow.left"_s : u"arrow.right"_s,
                   Role::Text2, arrowSize);
    paint.side(layout.now, Role::Text);
    if (option.state & QStyle::State_HasFocus && option.widget && hasKeyboardFocus(*option.widget))
        paintFocusRing(painter, row.adjusted(2, 2, -2, -2), cardRadius - 2);
}

} // namespace

void ComparisonDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    painter->save();
    if (index.data(ComparisonModel::HeadingRole).toBool())
        paintHeading(*painter, option, index);
    else
        paintChange(*painter, option, index);
    painter->restore();
}

QSize ComparisonDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int width = option.widget ? option.widget->width() : option.rect.width();
    if (index.data(ComparisonModel::HeadingRole).toBool())
        return {width, Appearance::current().scaled(headingHeight)};
    return {width, qCeil(Arranger(width, index).arrange().height)};
}

/// The whole texts of a row of which not all could be shown.
bool ComparisonDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || index.data(ComparisonModel::HeadingRole).toBool())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const auto layout = Arranger(option.rect.width(), index).arrange();
    const auto isCut = [](const TextPointer &text) { return text && text->isElided(); };
    const bool anyIsCut = isCut(layout.labelText) || isCut(layout.before.text) || isCut(layout.now.text);
    QToolTip::showText(event->globalPos(),
                       anyIsCut ? index.data(ComparisonModel::TextRole).toString() : QString(), view);
    return true;
}

} // namespace quillmark::app
