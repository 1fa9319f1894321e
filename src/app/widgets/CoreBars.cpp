// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/CoreBars.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QEvent>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace quillmark::app {

using design::Role;

namespace {

// In logical pixels.
constexpr int gap = 8;
constexpr int narrowGap = 3;
constexpr int numberHeight = 22;
constexpr int widestBar = 64;
constexpr qreal barRadius = 4;
constexpr int leastBarHeight = 24;

constexpr int mostWideBars = 16;
constexpr int mostInOneRow = 32;
constexpr int numberEvery = 4; ///< of narrow bars

} // namespace

CoreBars::CoreBars(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&Appearance::current(), &Appearance::changed, this, qOverload<>(&QWidget::update));
}

void CoreBars::setLoads(const std::vector<double> &loads)
{
    if (loads.size() != m_loads.size()) {
        m_loads = loads;
        updateGeometry();
        update();
        return;
    }
    for (int core = 0; core < static_cast<int>(loads.size()); ++core) {
        const int before = fill(core);
        m_loads[static_cast<std::size_t>(core)] = loads[static_cast<std::size_t>(core)];
        if (fill(core) != before)
            update(track(core));
    }
}

QSize CoreBars::minimumSizeHint() const
{
    const int rows = static_cast<int>(m_loads.size()) > mostInOneRow ? 2 : 1;
    return {120, rows * (leastBarHeight + Appearance::current().scaled(numberHeight))};
}

int CoreBars::coresInRow() const
{
    const int cores = static_cast<int>(m_loads.size());
    return cores > mostInOneRow ? (cores + 1) / 2 : cores;
}

QRect CoreBars::track(int core) const
{
    const int inRow = coresInRow();
    const int rows = static_cast<int>(m_loads.size()) > inRow ? 2 : 1;
    const int place = core % inRow;
    const int between = static_cast<int>(m_loads.size()) > mostWideBars ? narrowGap : gap;
    const qreal widest = Appearance::current().scaled(widestBar) + between;
    const qreal step = std::min((width() + between) / qreal(inRow), widest);
    const int left = qRound(place * step);
    const int right = qRound((place + 1) * step) - between;
    const int rowHeight = height() / rows;
    const QRect bar(left, core / inRow * rowHeight, std::max(right - left, 1),
                    rowHeight - Appearance::current().scaled(numberHeight));
    return placed(bar, rect(), layoutDirection()).toRect();
}

/// The height of the core's bar.
int CoreBars::fill(int core) const
{
    const double load = std::clamp(m_loads[static_cast<std::size_t>(core)], 0.0, 1.0);
    return qRound(track(core).height() * load);
}

void CoreBars::paintEvent(QPaintEvent *event)
{
    const auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.fillRect(event->rect(), appearance.color(Role::Card));
    painter.setFont(appearance.font(TextRole::Mini, QFont::Medium));
    const int cores = static_cast<int>(m_loads.size());
    const int every = cores > mostWideBars ? numberEvery : 1;
    const int below = appearance.scaled(numberHeight);
    for (int core = 0; core < cores; ++core) {
        const auto bar = track(core);
        const qreal radius = std::min(barRadius, bar.width() / 2.0);
        if (event->region().intersects(bar)) {
            paintBox(painter, bar, radius, appearance.color(Role::Hairline), {});
            painter.save();
            // A bar lower than its corners are round keeps the width of its track.
            painter.setClipRect(bar.adjusted(0, bar.height() - fill(core), 0, 0), Qt::IntersectClip);
            const int shown = std::max(fill(core), static_cast<int>(2 * radius));
            paintBox(painter, bar.adjusted(0, bar.height() - shown, 0, 0), radius,
                     appearance.color(Role::ChartProcessor), {});
            painter.restore();
        }
        const QRect label(bar.left() - below, bar.bottom() + 1, bar.width() + 2 * below, below);
        if ((core == 0 || (core + 1) % every == 0) && event->region().intersects(label)) {
            painter.setPen(appearance.color(Role::Text3));
            drawTabular(painter, label, Qt::AlignHCenter | Qt::AlignBottom, locale().toString(core + 1));
        }
    }
}

void CoreBars::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LayoutDirectionChange)
        update();
}

} // namespace quillmark::app
