// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/MonitorCard.h"

#include "app/widgets/IconTile.h"
#include "app/widgets/TextLabel.h"

#include <QBoxLayout>

namespace quillmark::app {

using design::Role;

namespace {

// In logical pixels.
constexpr int sidePadding = 18;
constexpr int topPadding = 14;
constexpr int bottomPadding = 12;
constexpr int titleHeight = 28;
constexpr IconTile::Shape titleIcon{18, 0, 18};
constexpr int legendHeight = 26;
constexpr int legendGap = 12;
constexpr int tileHeight = 88;

} // namespace

MonitorCard::MonitorCard(const QString &symbol, QWidget *chart, int height, QWidget *parent)
    : Card(parent)
    , m_title(new TextLabel(TextRole::Heading))
    , m_figures(new FigureLine(Qt::AlignTrailing))
    , m_chart(chart)
    , m_legend(new QBoxLayout(QBoxLayout::LeftToRight))
    , m_series(new FigureLine(Qt::AlignLeading))
    , m_verdict(new FigureLine(Qt::AlignTrailing))
    , m_height(height)
{
    auto *icon = new IconTile(symbol, titleIcon);
    icon->setColors(Role::Card, Role::Text2);
    auto *title = new QHBoxLayout;
    title->setSpacing(10);
    title->addWidget(icon);
    title->addWidget(m_title);
    title->addWidget(m_figures, 1);

    m_verdict->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_legend->setSpacing(legendGap);
    m_legend->addWidget(m_series, 1);
    m_legend->addWidget(m_verdict);
    m_series->hide();
    m_verdict->hide();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(sidePadding, topPadding, sidePadding, bottomPadding);
    column->setSpacing(0);
    column->addLayout(title);
    column->addSpacing(8);
    column->addWidget(m_chart, 1);
    column->addLayout(m_legend);

    fitHeight();
    connect(&Appearance::current(), &Appearance::changed, this, &MonitorCard::fitHeight);
}

void MonitorCard::setTitle(const QString &title)
{
    m_title->setText(title);
    m_chart->setAccessibleName(title);
}

void MonitorCard::setFigures(std::vector<FigureLine::Part> parts)
{
    m_figures->setParts(std::move(parts));
}

void MonitorCard::setLegend(std::vector<FigureLine::Part> series, std::vector<FigureLine::Part> verdict)
{
    m_series->setVisible(!series.empty());
    m_verdict->setVisible(!verdict.empty());
    m_series->setParts(std::move(series));
    m_verdict->setParts(std::move(verdict));
    fitLegend();
}

void MonitorCard::setDescription(const QString &description)
{
    m_chart->setAccessibleDescription(description);
}

void MonitorCard::resizeEvent(QResizeEvent *event)
{
    Card::resizeEvent(event);
    fitLegend();
}

void MonitorCard::fitHeight()
{
    const auto &appearance = Appearance::current();
    m_figures->setMinimumHeight(appearance.scaled(titleHeight));
    m_series->setMinimumHeight(appearance.scaled(legendHeight));
    m_verdict->setMinimumHeight(appearance.scaled(legendHeight));
    setMinimumHeight(appearance.scaled(m_height));
    fitLegend();
}

void MonitorCard::fitLegend()
{
    const int needed = m_series->sizeHint().width() + legendGap + m_verdict->sizeHint().width();
    const bool fits = needed <= width() - 2 * sidePadding;
    const auto direction = fits || m_verdict->isHidden() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (m_legend->direction() == direction)
        return;
    m_legend->setDirection(direction);
    m_legend->setSpacing(fits ? legendGap : 0);
}

MonitorTile::MonitorTile(const QString &symbol, QWidget *parent)
    : Card(parent)
    , m_label(new TextLabel(TextRole::Small, Role::Text2))
    , m_value(new FigureLine(Qt::AlignLeading))
    , m_note(new TextLabel(TextRole::Small, Role::Text3))
{
    auto *words = new QVBoxLayout;
    words->setSpacing(1);
    words->addStretch();
    words->addWidget(m_label);
    words->addWidget(m_value);
    words->addWidget(m_note);
    words->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(sidePadding, 0, 12, 0);
    row->setSpacing(14);
    row->addWidget(new IconTile(symbol, IconTile::medium));
    row->addLayout(words, 1);
    m_note->hide();
    m_note->setWordWrap(true);

    const auto fit = [this] { setMinimumHeight(Appearance::current().scaled(tileHeight)); };
    fit();
    connect(&Appearance::current(), &Appearance::changed, this, fit);
}

void MonitorTile::setLabel(const QString &label)
{
    if (label != m_label->text())
        m_label->setText(label);
}

void MonitorTile::setValue(const QString &value, const std::optional<design::StatusStyle> &verdict)
{
    FigureLine::Part part{.text = value, .font = TextRole::Title3, .weight = QFont::Bold};
    if (verdict) {
        part.symbol = verdict->symbol;
        part.symbolColor = verdict->mark;
    }
    m_value->setParts({part});
}

void MonitorTile::setNote(const QString &note)
{
    if (note == m_note->text())
        return;
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

} // namespace quillmark::app
