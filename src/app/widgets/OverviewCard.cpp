// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/OverviewCard.h"

#include "app/Appearance.h"
#include "app/WrappedText.h"
#include "app/painting.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using inspection::CapabilityStatus;

namespace {

// In logical pixels.
constexpr int cardHeight = 104;
constexpr int padding = 14;
constexpr int tileSize = 28;
constexpr qreal tileRadius = 8;
constexpr int symbolSize = 17;
constexpr int titleGap = 10;
constexpr int chevronSize = 12;
constexpr int firstLine = 56; ///< their centres
constexpr int secondLine = 83;
constexpr int lineHeight = 20;
constexpr int markSize = 14;
constexpr int markGap = 7;
constexpr int countGap = 14;
constexpr int barHeight = 10;
constexpr qreal barRadius = 5;

} // namespace

OverviewCard::OverviewCard(QWidget *parent)
    : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

QSize OverviewCard::sizeHint() const
{
    return {0, Appearance::current().scaled(cardHeight)};
}

QRectF OverviewCard::mirrored(const QRectF &place) const
{
    return placed(place, rect(), layoutDirection());
}

void OverviewCard::paintText(QPainter &painter, const QRectF &place, const QString &text, const QFont &font,
                             const QColor &color, Qt::LayoutDirection runs)
{
    const WrappedText set(text, font, place.width(), 1, runs);
    m_isCut = m_isCut || set.isElided();
    const QRectF line(place.left(), place.center().y() - set.height() / 2, place.width(), set.height());
    set.draw(painter, mirrored(line).topLeft(), layoutDirection(), color);
}

/// Tells all of the card where not all fits.
bool OverviewCard::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       m_isCut ? text() + u'\n' + detail() : QString(), this);
    return true;
}

void OverviewCard::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    m_isCut = false;
    const auto look = this->look();
    const auto ground =
        isEnabled() && isDown() ? over(look.ground, appearance.color(Role::Text), 0.04) : look.ground;
    paintBox(painter, rect(), cardRadius, ground, look.border);
    if (hasKeyboardFocus(*this))
        paintFocusRing(painter, rect(), cardRadius - 1);

    const qreal side = appearance.scaled(tileSize);
    const QRectF tile(padding, padding, side, side);
    paintBox(painter, mirrored(tile), tileRadius, look.tile, {});
    const qreal icon = appearance.scaled(symbolSize);
    QRectF iconPlace(0, 0, icon, icon);
    iconPlace.moveCenter(tile.center());
    appearance.paintIcon(painter, mirrored(iconPlace), symbol(), Role::Accent);

    qreal right = width() - padding;
    if (opens()) {
        const qreal chevron = appearance.scaled(chevronSize);
        const QRectF place(right - chevron - 1, tile.center().y() - chevron / 2, chevron, chevron);
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        appearance.paintIcon(painter, mirrored(place), isMirrored ? u"chevron.left"_s : u"chevron.right"_s,
                             look.border.isValid() ? Role::Text3 : Role::Accent);
        right = place.left() - titleGap;
    }
    const qreal left = tile.right() + titleGap;
    paintText(painter, {left, tile.top(), right - left, tile.height()}, text(),
              appearance.font(TextRole::Heading), look.title);

    const auto line = [&](int center) {
        const qreal tall = appearance.scaled(lineHeight);
        return QRectF(padding, padding + appearance.scaled(center - padding) - tall / 2,
                      width() - 2 * padding, tall);
    };
    paintLines(painter, line(firstLine), line(secondLine));
}

void SectionCard::take(const inspection::CapabilitySection &section)
{
    m_key = section.key.value_or(section.title);
    m_symbol = section.symbol;
    m_counts = inspection::countsOf({section});
    setText(section.title);
    setAccessibleName(section.title);
}

void SectionCard::show(const inspection::CapabilitySection &section, std::optional<int> builtInDisplay)
{
    take(section);
    m_isCollecting = false;
    m_lead = leadingRow(section, builtInDisplay);
    QStringList counts;
    for (const auto status : inspection::allStatuses) {
        if (const auto count = m_counts.of(status); count > 0)
            counts += countText(status, static_cast<int>(count));
    }
    setAccessibleDescription(counts.join(u", "_s));
    setEnabled(true);
    update();
}

void SectionCard::showCollecting(const inspection::CapabilitySection &section)
{
    take(section);
    m_isCollecting = true;
    setEnabled(false);
    update();
}

QString SectionCard::countText(CapabilityStatus status, int count)
{
    switch (status) {
    case CapabilityStatus::Supported:
        return tr("%n supported", nullptr, count);
    case CapabilityStatus::Unsupported:
        return tr("%n not supported", nullptr, count);
    case CapabilityStatus::Warning:
        return tr("%n warnings", nullptr, count);
    case CapabilityStatus::Info:
        break;
    }
    return tr("%n info", nullptr, count);
}

OverviewCard::Look SectionCard::look() const
{
    const auto &appearance = Appearance::current();
    return {appearance.color(Role::Card), appearance.color(isHot() ? Role::Accent : Role::CardBorder),
            appearance.color(Role::AccentSoft), appearance.color(Role::Text)};
}

void SectionCard::paintLines(QPainter &painter, const QRectF &first, const QRectF &second)
{
    if (m_isCollecting) {
        paintBars(painter, first, second);
        return;
    }
    if (m_lead)
        paintLead(painter, first);
    paintCounts(painter, second);
}

QString SectionCard::detail() const
{
    if (!m_lead || m_lead->label.isEmpty())
        return m_lead ? m_lead->value : QString();
    return leadLabel() + u' ' + isolated(m_lead->value);
}

QString SectionCard::leadLabel() const
{
    //: The label before its value
    return tr("%1:").arg(isolated(m_lead->label));
}

/// The label gives way before the value does.
void SectionCard::paintLead(QPainter &painter, const QRectF &place)
{
    const auto &appearance = Appearance::current();
    const auto valueFont = appearance.font(TextRole::Body, QFont::Medium);
    const auto valueColor = appearance.color(Role::Text);
    if (m_lead->label.isEmpty()) {
        paintText(painter, place, m_lead->value, valueFont, valueColor);
        return;
    }
    const auto labelFont = appearance.font(TextRole::Body);
    const auto label = leadLabel();
    const qreal gap = QFontMetricsF(labelFont).horizontalAdvance(u' ');
    const qreal wanted = QFontMetricsF(labelFont).horizontalAdvance(label) + 1;
    const qreal value = QFontMetricsF(valueFont).horizontalAdvance(m_lead->value) + 1;
    const qreal labelWidth = std::min(wanted, place.width() - gap - value);
    // Of a label that would be no more than a letter nothing is shown.
    const bool hasLabel = labelWidth >= std::min(wanted, appearance.scaled(28) * 1.0);
    const qreal valueLeft = hasLabel ? labelWidth + gap : 0;
    if (hasLabel)
        paintText(painter, {place.left(), place.top(), labelWidth, place.height()}, label, labelFont,
                  appearance.color(Role::Text2), layoutDirection());
    paintText(painter, place.adjusted(valueLeft, 0, 0, 0), m_lead->value, valueFont, valueColor);
}

void SectionCard::paintCounts(QPainter &painter, const QRectF &place) const
{
    auto &appearance = Appearance::current();
    const qreal mark = appearance.scaled(markSize);
    painter.setFont(appearance.font(TextRole::Small));
    painter.setPen(appearance.color(Role::Text2));
    qreal x = place.left();
    for (const auto status : inspection::allStatuses) {
        const auto count = m_counts.of(status);
        if (count == 0)
            continue;
        const auto style = design::statusStyle(status);
        appearance.paintIcon(painter, mirrored({x, place.center().y() - mark / 2, mark, mark}), style.symbol,
                             style.mark);
        x += mark + markGap;
        const auto number = QLocale().toString(count);
        const qreal width = tabularWidth(painter.font(), number);
        drawTabular(painter, mirrored({x, place.top(), width, place.height()}),
                    Qt::AlignLeft | Qt::AlignVCenter, number);
        x += width + countGap;
    }
}

void SectionCard::paintBars(QPainter &painter, const QRectF &first, const QRectF &second) const
{
    const auto &appearance = Appearance::current();
    const auto color = over(appearance.color(Role::Card), appearance.color(Role::Text), 0.08);
    const auto bar = [&](const QRectF &line, qreal left, qreal length) {
        const QRectF place(line.left() + left, line.center().y() - barHeight / 2.0, length, barHeight);
        paintBox(painter, mirrored(place), barRadius, color, {});
    };
    // Not all alike, as texts are not.
    constexpr int kinds = 5;
    bar(first, 0, first.width() * (0.5 + 0.05 * static_cast<double>(m_key.size() % kinds)));
    bar(second, 0, 34);
    bar(second, 47, 34);
}

void SinceCard::show(const QString &title, const QString &text, const QString &invitation)
{
    setText(title);
    m_line = text;
    m_invitation = invitation;
    setAccessibleName(title);
    setAccessibleDescription(text);
    setEnabled(!invitation.isEmpty());
    update();
}

QString SinceCard::symbol() const
{
    return u"arrow.left.arrow.right"_s;
}

OverviewCard::Look SinceCard::look() const
{
    const auto &appearance = Appearance::current();
    const auto ground = appearance.color(Role::AccentSoft);
    return {ground, isHot() ? appearance.color(Role::Accent) : QColor(), appearance.color(Role::Card),
            appearance.color(Role::AccentText)};
}

void SinceCard::paintLines(QPainter &painter, const QRectF &first, const QRectF &second)
{
    const auto &appearance = Appearance::current();
    paintText(painter, first, m_line, appearance.font(TextRole::Body), appearance.color(Role::Text2));
    paintText(painter, second, m_invitation, appearance.font(TextRole::Body, QFont::Medium),
              appearance.color(Role::AccentText));
}

} // namespace quillmark::app
