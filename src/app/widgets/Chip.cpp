// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/Chip.h"

#include "app/Appearance.h"
#include "app/painting.h"
#include "app/widgets/FlowLayout.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using inspection::CapabilityStatus;

namespace {

// In logical pixels.
constexpr int chipHeight = 30;
constexpr int markSize = 15;
constexpr int markGap = 6;
constexpr int countGap = 8;

int leadingPadding(bool compact)
{
    return compact ? 8 : 10;
}

int trailingPadding(bool compact)
{
    return compact ? 9 : 12;
}

QFont wordFont()
{
    return Appearance::current().font(TextRole::Body, QFont::Medium);
}

QFont countFont()
{
    return Appearance::current().font(TextRole::Body);
}

} // namespace

Chip::Chip(const QString &symbol, Role mark, QWidget *parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
    , m_mark(mark)
{
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void Chip::setCount(std::optional<qsizetype> count)
{
    if (count == m_count)
        return;
    m_count = count;
    updateGeometry();
    update();
}

void Chip::setHasCount(bool hasCount)
{
    m_hasCount = hasCount;
    updateGeometry();
    update();
}

void Chip::setCompact(bool compact)
{
    m_isCompact = compact;
    updateGeometry();
    update();
}

QString Chip::countText() const
{
    if (!m_hasCount)
        return {};
    return m_count ? QLocale().toString(*m_count) : u"–"_s;
}

QSize Chip::sizeHint() const
{
    const auto &appearance = Appearance::current();
    int width = leadingPadding(m_isCompact) + QFontMetrics(wordFont()).horizontalAdvance(text()) +
                trailingPadding(m_isCompact);
    if (!m_symbol.isEmpty())
        width += appearance.scaled(markSize) + markGap;
    if (m_hasCount)
        width += countGap + qCeil(tabularWidth(countFont(), countText()));
    return {width, std::max(appearance.scaled(chipHeight), QFontMetrics(wordFont()).height() + 8)};
}

void Chip::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    const auto chosen = isChecked();
    const auto bounds = QRectF(rect());
    const qreal radius = bounds.height() / 2;
    auto ground = appearance.color(chosen ? Role::AccentSoft : Role::Card);
    if (isEnabled() && (isDown() || underMouse()))
        ground = over(ground, appearance.color(Role::Text), isDown() ? 0.12 : 0.08);

    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.45);
    paintBox(painter, bounds, radius, ground, appearance.color(chosen ? Role::Accent : Role::CardBorder));
    if (chosen)
        paintBox(painter, bounds.adjusted(0.5, 0.5, -0.5, -0.5), radius, {}, appearance.color(Role::Accent));
    if (hasKeyboardFocus(*this))
        paintFocusRing(painter, bounds, radius);

    qreal x = leadingPadding(m_isCompact);
    if (!m_symbol.isEmpty()) {
        const qreal mark = appearance.scaled(markSize);
        const QRectF place(x, (bounds.height() - mark) / 2, mark, mark);
        painter.save();
        if (isEmpty() && !chosen)
            painter.setOpacity(painter.opacity() * 0.55);
        appearance.paintIcon(painter, placed(place, bounds, layoutDirection()), m_symbol, m_mark);
        painter.restore();
        x += mark + markGap;
    }
    const auto words = isEmpty() && !chosen ? Role::Text3 : chosen ? Role::AccentText : Role::Text;
    painter.setFont(wordFont());
    painter.setPen(appearance.color(words));
    const qreal wordWidth = QFontMetricsF(wordFont()).horizontalAdvance(text());
    painter.drawText(placed({x, 0, wordWidth + 1, bounds.height()}, bounds, layoutDirection()),
                     Qt::AlignVCenter | Qt::AlignHCenter, text());
    x += wordWidth + countGap;
    painter.setFont(countFont());
    if (!chosen)
        painter.setPen(appearance.color(isEmpty() ? Role::Text3 : Role::Text2));
    const qreal countWidth = tabularWidth(countFont(), countText());
    drawTabular(painter, placed({x, 0, countWidth, bounds.height()}, bounds, layoutDirection()),
                Qt::AlignVCenter | Qt::AlignLeft, countText());
}

void Chip::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        updateGeometry();
}

ChipRow::ChipRow(QWidget *parent)
    : QWidget(parent)
{
    new FlowLayout(this, 8);
    auto policy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(&m_group, &QButtonGroup::idToggled, this, [this](int index, bool isOn) {
        if (!isOn || index == m_last)
            return;
        m_last = index;
        Q_EMIT chosenChanged(index);
    });
}

Chip *ChipRow::addChip(const QString &symbol, Role mark)
{
    auto *chip = new Chip(symbol, mark, this);
    m_group.addButton(chip, static_cast<int>(m_group.buttons().size()));
    layout()->addWidget(chip);
    if (m_group.buttons().size() == 1)
        chip->setChecked(true);
    return chip;
}

Chip *ChipRow::chip(int index) const
{
    return static_cast<Chip *>(m_group.button(index));
}

void ChipRow::choose(int index)
{
    chip(index)->setChecked(true);
}

void ChipRow::setCompact(bool compact)
{
    static_cast<FlowLayout *>(layout())->setGap(compact ? 6 : 8);
    for (auto *button : m_group.buttons())
        static_cast<Chip *>(button)->setCompact(compact);
}

StatusChips::StatusChips(QWidget *parent)
    : ChipRow(parent)
{
    addChip(u"list.bullet"_s, Role::AccentText);
    for (const auto status : inspection::allStatuses) {
        const auto style = design::statusStyle(status);
        addChip(style.symbol, style.mark);
    }
    retranslate();
    connect(this, &ChipRow::chosenChanged, this, [this] { Q_EMIT statusChanged(status()); });
}

void StatusChips::setCounts(const std::optional<inspection::StatusCounts> &counts)
{
    m_counts = counts;
    qsizetype all = 0;
    for (const auto status : inspection::allStatuses) {
        const auto rows = counts ? std::optional(counts->of(status)) : std::nullopt;
        chip(1 + static_cast<int>(status))->setCount(rows);
        all += rows.value_or(0);
    }
    chip(0)->setCount(counts ? std::optional(all) : std::nullopt);
    retranslate();
}

std::optional<CapabilityStatus> StatusChips::status() const
{
    if (chosen() == 0)
        return std::nullopt;
    return inspection::allStatuses[static_cast<std::size_t>(chosen() - 1)];
}

void StatusChips::setStatus(std::optional<CapabilityStatus> status)
{
    choose(status ? 1 + static_cast<int>(*status) : 0);
}

void StatusChips::changeEvent(QEvent *event)
{
    ChipRow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void StatusChips::retranslate()
{
    const auto name = [](Chip *chip, const QString &word, std::optional<qsizetype> rows) {
        chip->setText(word);
        //: Name of a filter, for screen readers: "Warning, 3 rows"
        chip->setAccessibleName(rows ? tr("%1, %n rows", nullptr, static_cast<int>(*rows)).arg(word) : word);
        chip->updateGeometry();
    };
    qsizetype all = 0;
    for (const auto status : inspection::allStatuses) {
        const auto rows = m_counts ? std::optional(m_counts->of(status)) : std::nullopt;
        name(chip(1 + static_cast<int>(status)), inspection::title(status), rows);
        all += rows.value_or(0);
    }
    name(chip(0), tr("All"), m_counts ? std::optional(all) : std::nullopt);
}

} // namespace quillmark::app
