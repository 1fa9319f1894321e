// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/ChartView.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillmark::app {

using design::Role;
using monitor::MonitorModel;

namespace {

// In logical pixels.
constexpr int spaceAbove = 7;
constexpr int spaceBelow = 20;
constexpr int labelGap = 10;
constexpr qreal dotRadius = 3.25;
constexpr qreal dotRing = 1.5;
constexpr int leastPlotHeight = 60;
constexpr int leastPlotWidth = 120;

QFont labelFont()
{
    return Appearance::current().font(TextRole::Mini, QFont::Medium);
}

} // namespace

ChartView::ChartView(std::vector<Series> series, QWidget *parent)
    : QWidget(parent)
    , m_series(std::move(series))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        renew();
    });
}

void ChartView::setAxis(double top, const QStringList &labels)
{
    if (top == m_top && labels == m_labels)
        return;
    m_top = top;
    m_labels = labels;
    renew();
}

void ChartView::setGutter(int width)
{
    m_gutter = width;
    renew();
}

void ChartView::setPoints(const std::vector<MonitorModel::Point> &points)
{
    m_points = points;
    updateTrace();
    update(linesArea());
}

QSize ChartView::minimumSizeHint() const
{
    const auto &appearance = Appearance::current();
    return {leastPlotWidth + appearance.scaled(m_gutter),
            leastPlotHeight + appearance.scaled(spaceAbove + spaceBelow)};
}

/// The first row is that of the top, the last one that of the base line.
QRect ChartView::plot() const
{
    const auto &appearance = Appearance::current();
    const QFontMetricsF metrics(labelFont());
    qreal widest = 0;
    for (const auto &label : m_labels)
        widest = std::max(widest, metrics.horizontalAdvance(label));
    const int gutter = std::max(appearance.scaled(m_gutter), static_cast<int>(std::ceil(widest)) + labelGap);
    const int above = appearance.scaled(spaceAbove);
    return {0, above, width() - gutter, height() - above - appearance.scaled(spaceBelow)};
}

/// What a new sample may change.
QRect ChartView::linesArea() const
{
    const int reach = static_cast<int>(std::ceil(dotRadius + dotRing)) + 1;
    return plot().adjusted(0, -reach, reach, reach);
}

void ChartView::updateTrace()
{
    const auto area = plot();
    if (area.width() < 1 || area.height() < 2)
        return;
    const auto &appearance = Appearance::current();
    const qreal ratio = devicePixelRatioF();
    std::vector<ChartTrace::Line> lines;
    for (const auto &series : m_series) {
        auto points = monitor::series(m_points, series.value);
        for (auto &point : points)
            point.value = std::clamp(point.value / m_top, 0.0, 1.0);
        lines.push_back({std::move(points), appearance.color(series.color), series.isFilled});
    }
    const QSize size(qRound(area.width() * ratio), qRound((area.height() - 1) * ratio));
    m_trace.update(std::move(lines), {size, ratio});
}

QPixmap ChartView::makeGround() const
{
    const auto &appearance = Appearance::current();
    const qreal ratio = devicePixelRatioF();
    QPixmap ground((QSizeF(size()) * ratio).toSize());
    ground.setDevicePixelRatio(ratio);
    ground.fill(appearance.color(Role::Card));
    const QRectF area = plot();
    const qreal base = area.bottom() - 1;
    QPainter painter(&ground);
    const auto row = [&](double share) { return std::round(base - share * (base - area.top())) + 0.5; };
    for (const double share : {0.5, 1.0})
        paintHairline(painter, area.left(), area.right(), row(share), appearance.color(Role::Hairline));
    painter.setPen(QPen(appearance.color(Role::Hairline), 0));
    for (const int seconds : {30, 60, 90}) {
        const qreal x = std::round(area.right() - area.width() * seconds / monitor::chartSeconds) + 0.5;
        painter.drawLine(QPointF(x, area.top()), QPointF(x, base));
    }
    paintHairline(painter, area.left(), area.right(), row(0), appearance.color(Role::ControlBorder));

    const QFontMetricsF metrics(labelFont(), &ground);
    painter.setFont(labelFont());
    painter.setPen(appearance.color(Role::Text3));
    const qreal middle = (metrics.ascent() - metrics.descent()) / 2;
    for (int i = 0; i < m_labels.size(); ++i)
        painter.drawText(QPointF(area.right() + labelGap, row(i / 2.0) + middle), m_labels[i]);
    const qreal timeLine = height() - metrics.descent();
    const auto drawTime = [&](qreal share, const QString &text) {
        const qreal spare = area.width() - metrics.horizontalAdvance(text);
        painter.drawText(QPointF(area.left() + spare * share, timeLine), text);
    };
    drawTime(0, tr("2 min"));
    drawTime(0.5, tr("1 min"));
    drawTime(1, tr("Now"));
    return ground;
}

void ChartView::paintEvent(QPaintEvent *event)
{
    const qreal ratio = devicePixelRatioF();
    if (m_ground.isNull() || m_ground.devicePixelRatio() != ratio) {
        m_ground = makeGround();
        updateTrace();
    }
    QPainter painter(this);
    const QRectF part = event->rect();
    painter.drawPixmap(part, m_ground, QRectF(part.topLeft() * ratio, part.size() * ratio));
    const auto area = plot();
    if (m_points.empty() || m_trace.picture().isNull() || !event->rect().intersects(linesArea()))
        return;

    painter.save();
    painter.scale(1 / ratio, 1 / ratio); // the picture's pixels are the screen's
    painter.drawImage(QPointF(area.left(), area.top()) * ratio - QPointF(0, m_trace.margin()),
                      m_trace.picture());
    painter.restore();

    const auto &appearance = Appearance::current();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(appearance.color(Role::Card), dotRing));
    const auto &newest = m_points.back();
    for (const auto &series : m_series) {
        const double share = std::clamp(newest.*series.value / m_top, 0.0, 1.0);
        painter.setBrush(appearance.color(series.color));
        const QPointF place(area.right() + 1, area.top() + (area.height() - 1) * (1 - share));
        painter.drawEllipse(place, dotRadius + dotRing / 2, dotRadius + dotRing / 2);
    }
}

void ChartView::resizeEvent(QResizeEvent *)
{
    renew();
}

void ChartView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        renew();
}

/// Grid, labels and lines are all drawn again with the next paint event.
void ChartView::renew()
{
    m_ground = {};
    m_trace.invalidate();
    update();
}

} // namespace quillmark::app
