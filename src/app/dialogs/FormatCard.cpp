// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/FormatCard.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QPainter>

#include <algorithm>

namespace quillmark::app {

using design::Role;

namespace {

constexpr int leastHeight = 56;
constexpr int padding = 12;
constexpr int radioSize = 18;
constexpr int symbolSize = 22;
constexpr int gap = 12;
constexpr int textGap = 14;

QFont titleFont()
{
    return Appearance::current().font(TextRole::Body, QFont::DemiBold);
}

QFont descriptionFont()
{
    return Appearance::current().font(TextRole::Small);
}

} // namespace

FormatCard::FormatCard(const QString &symbol, QWidget *parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void FormatCard::setDescription(const QString &description)
{
    m_description = description;
    setAccessibleDescription(description);
    updateGeometry();
    update();
}

QSize FormatCard::sizeHint() const
{
    const auto &appearance = Appearance::current();
    const QFontMetrics title(titleFont());
    const QFontMetrics description(descriptionFont());
    const int texts = std::max(title.horizontalAdvance(text()), description.horizontalAdvance(m_description));
    return {
        2 * padding + appearance.scaled(radioSize) + gap + appearance.scaled(symbolSize) + textGap + texts,
        std::max(appearance.scaled(leastHeight), title.height() + description.height() + 2 * padding - 4)};
}

void FormatCard::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    const QRectF bounds(rect());
    const bool isHovered = isEnabled() && (isDown() || underMouse());
    auto ground = appearance.color(isChecked() ? Role::AccentSoft : Role::Card);
    if (isHovered)
        ground = over(ground, appearance.color(Role::Text), isDown() ? 0.12 : 0.04);
    paintBox(painter, bounds, buttonRadius, ground,
             appearance.color(isChecked() ? Role::Accent : Role::CardBorder));
    if (isChecked())
        paintBox(painter, bounds.adjusted(0.5, 0.5, -0.5, -0.5), buttonRadius, {},
                 appearance.color(Role::Accent));
    if (hasKeyboardFocus(*this))
        paintFocusRing(painter, bounds.adjusted(3, 3, -3, -3), buttonRadius - 3);

    qreal x = padding;
    const auto place = [&](qreal side) {
        const QRectF square(x, (bounds.height() - side) / 2, side, side);
        return placed(square, bounds, layoutDirection());
    };
    const qreal radio = appearance.scaled(radioSize);
    const auto circle = place(radio);
    paintBox(painter, circle, radio / 2, appearance.color(isChecked() ? Role::Accent : Role::Control),
             isChecked() ? QColor() : appearance.color(Role::ControlStrong));
    if (isChecked()) {
        const qreal inset = radio * 0.31;
        paintBox(painter, circle.adjusted(inset, inset, -inset, -inset), radio,
                 appearance.color(Role::OnAccent), {});
    }
    x += radio + gap;
    const qreal symbol = appearance.scaled(symbolSize);
    appearance.paintIcon(painter, place(symbol), m_symbol, isChecked() ? Role::AccentText : Role::Text2);
    x += symbol + textGap;

    const QFontMetricsF title(titleFont());
    const QFontMetricsF description(descriptionFont());
    const qreal top = (bounds.height() - title.height() - description.height()) / 2;
    const auto line = [&](qreal y, qreal height) {
        return placed({x, y, bounds.width() - x - padding, height}, bounds, layoutDirection());
    };
    painter.setFont(titleFont());
    painter.setPen(appearance.color(isChecked() ? Role::AccentText : Role::Text));
    const auto titleLine = line(top, title.height());
    painter.drawText(titleLine, Qt::AlignLeft | Qt::AlignVCenter,
                     title.elidedText(text(), Qt::ElideRight, titleLine.width()));
    painter.setFont(descriptionFont());
    painter.setPen(appearance.color(Role::Text2));
    const auto descriptionLine = line(top + title.height(), description.height());
    painter.drawText(descriptionLine, Qt::AlignLeft | Qt::AlignVCenter,
                     description.elidedText(m_description, Qt::ElideRight, descriptionLine.width()));
}

} // namespace quillmark::app
