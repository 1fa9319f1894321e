// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/FormatCard.h"

#include "app/Appearance.h"
#include "app/WrappedText.h"
#include "app/painting.h"

#include <QPainter>
#include <QtMath>

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
    auto policy = QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
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

/// Where the texts stand, from the leading edge.
qreal FormatCard::textsBegin()
{
    const auto &appearance = Appearance::current();
    return padding + appearance.scaled(radioSize) + gap + appearance.scaled(symbolSize) + textGap;
}

/// In a card of that width.
WrappedText FormatCard::description(qreal width) const
{
    return {m_description, descriptionFont(), width - textsBegin() - padding, 2, layoutDirection()};
}

int FormatCard::heightForWidth(int width) const
{
    const auto texts = QFontMetricsF(titleFont()).height() + description(width).height();
    return std::max(Appearance::current().scaled(leastHeight), qCeil(texts) + 2 * padding - 4);
}

QSize FormatCard::sizeHint() const
{
    const auto texts = std::max(QFontMetricsF(titleFont()).horizontalAdvance(text()),
                                QFontMetricsF(descriptionFont()).horizontalAdvance(m_description));
    const int width = qCeil(textsBegin() + texts) + padding;
    return {width, heightForWidth(width)};
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

    const QFontMetricsF title(titleFont());
    const auto lines = description(bounds.width());
    const qreal top = (bounds.height() - title.height() - lines.height()) / 2;
    const QRectF line(textsBegin(), top, bounds.width() - textsBegin() - padding, title.height());
    const auto titleLine = placed(line, bounds, layoutDirection());
    painter.setFont(titleFont());
    painter.setPen(appearance.color(isChecked() ? Role::AccentText : Role::Text));
    painter.drawText(titleLine, Qt::AlignLeft | Qt::AlignVCenter,
                     title.elidedText(text(), Qt::ElideRight, titleLine.width()));
    lines.draw(painter, titleLine.bottomLeft(), layoutDirection(), appearance.color(Role::Text2));
}

} // namespace quillmark::app
