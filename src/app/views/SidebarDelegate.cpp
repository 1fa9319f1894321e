// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/SidebarDelegate.h"

#include "app/Appearance.h"
#include "app/models/SidebarModel.h"
#include "app/painting.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int inset = 10;
constexpr int rowHeight = 30;
constexpr int headingHeight = 34;
constexpr qreal radius = 7;
constexpr int iconSize = 18;
constexpr int gap = 9;
constexpr int markSize = 13;

void paintHeading(QPainter &painter, const QStyleOptionViewItem &option, const QString &title)
{
    auto &appearance = Appearance::current();
    painter.setFont(appearance.font(TextRole::Mini));
    painter.setPen(appearance.color(Role::Text3));
    const auto inside = option.rect.adjusted(2 * inset, 0, -2 * inset, -6);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignBottom, title);
}

/// The triangle and the number of warnings at the trailing edge; the width that they take.
qreal paintWarnings(QPainter &painter, const QRectF &inside, Qt::LayoutDirection direction, int warnings)
{
    auto &appearance = Appearance::current();
    const auto number = QLocale().toString(warnings);
    painter.setFont(appearance.font(TextRole::Small));
    const qreal numberWidth = tabularWidth(painter.font(), number);
    const qreal mark = appearance.scaled(markSize);
    QRectF numberPlace(inside.right() - numberWidth, inside.top(), numberWidth, inside.height());
    QRectF markPlace(numberPlace.left() - 7 - mark, inside.center().y() - mark / 2, mark, mark);
    appearance.paintIcon(painter, placed(markPlace, inside, direction), u"exclamationmark.triangle.fill"_s,
                         Role::Warning);
    painter.setPen(appearance.color(Role::WarningText));
    drawTabular(painter, placed(numberPlace, inside, direction), Qt::AlignLeft | Qt::AlignVCenter, number);
    return numberWidth + 7 + mark;
}

} // namespace

void SidebarDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    auto &appearance = Appearance::current();
    const auto title = index.data().toString();
    painter->save();
    if (index.data(SidebarModel::HeadingRole).toBool()) {
        paintHeading(*painter, option, title);
        painter->restore();
        return;
    }

    const bool isSelected = option.state & QStyle::State_Selected;
    const QRectF row = QRectF(option.rect).adjusted(inset, 0, -inset, 0);
    if (isSelected)
        paintBox(*painter, row, radius, appearance.color(Role::NavSelected), {});
    else if (option.state & QStyle::State_MouseOver)
        paintBox(*painter, row, radius,
                 over(appearance.color(Role::Sidebar), appearance.color(Role::Text), 0.08), {});
    if (isSelected && option.widget && hasKeyboardFocus(*option.widget))
        paintFocusRing(*painter, row, radius);

    auto inside = row.adjusted(inset, 0, -inset, 0);
    const qreal icon = appearance.scaled(iconSize);
    const QRectF iconPlace(inside.left(), inside.center().y() - icon / 2, icon, icon);
    appearance.paintIcon(*painter, placed(iconPlace, inside, option.direction),
                         index.data(SidebarModel::SymbolRole).toString(),
                         isSelected ? Role::Accent : Role::Text2);
    qreal taken = 0;
    if (const int warnings = index.data(SidebarModel::WarningsRole).toInt(); warnings > 0)
        taken = paintWarnings(*painter, inside, option.direction, warnings) + gap;

    painter->setFont(isSelected ? appearance.font(TextRole::Body, QFont::DemiBold)
                                : appearance.font(TextRole::Body));
    painter->setPen(appearance.color(isSelected ? Role::AccentText : Role::Text));
    const auto textPlace = placed(inside.adjusted(icon + gap, 0, -taken, 0), inside, option.direction);
    painter->drawText(textPlace, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetricsF(painter->font()).elidedText(title, Qt::ElideRight, textPlace.width()));
    painter->restore();
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const auto &appearance = Appearance::current();
    const bool isHeading = index.data(SidebarModel::HeadingRole).toBool();
    const int text = QFontMetrics(appearance.font(TextRole::Body)).height();
    return {0, std::max(appearance.scaled(isHeading ? headingHeight : rowHeight), text + 8)};
}

} // namespace quillmark::app
