// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/MonitorRowView.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;
using Kind = MonitorRow::Kind;

namespace {

// In logical pixels.
constexpr int rowHeight = 46;
constexpr int groupGap = 12;
constexpr int padding = 16;
constexpr int iconSize = 19;
constexpr int labelBegins = 46;
constexpr int graphWidth = 64;
constexpr int graphHeight = 20;
constexpr int barHeight = 6;
constexpr int valueWidth = 69;
constexpr int markSize = 14;
constexpr int markGap = 6;

constexpr std::size_t graphSamples = 60;
constexpr float graphArea = 0.16F;

Role barRole(const MonitorRow &row)
{
    if (row.concern)
        return styleOf(*row.concern).mark;
    return row.kind == Kind::Memory ? Role::ChartMemory : Role::Supported;
}

} // namespace

MonitorRowView::MonitorRowView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&Appearance::current(), &Appearance::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void MonitorRowView::setRow(const MonitorRow &row)
{
    if (row == m_row)
        return;
    m_row = row;
    update();
}

void MonitorRowView::setHistory(std::vector<double> history)
{
    m_history = std::move(history);
    update();
}

void MonitorRowView::setBeginsGroup(bool beginsGroup)
{
    if (beginsGroup == m_beginsGroup)
        return;
    m_beginsGroup = beginsGroup;
    updateGeometry();
}

QSize MonitorRowView::sizeHint() const
{
    return {200, Appearance::current().scaled(rowHeight) + (m_beginsGroup ? groupGap : 0)};
}

void MonitorRowView::paintEvent(QPaintEvent *)
{
    auto &appearance = Appearance::current();
    QPainter painter(this);
    painter.fillRect(rect(), appearance.color(Role::Card));
    const QRectF bounds(rect());
    if (m_beginsGroup)
        paintHairline(painter, padding, bounds.right() - padding, groupGap / 2.0,
                      appearance.color(Role::Hairline));
    const auto line = bounds.adjusted(0, m_beginsGroup ? groupGap : 0, 0, 0);
    const auto at = [&](qreal left, qreal width, qreal height) {
        const QRectF place(left, line.center().y() - height / 2, width, height);
        return placed(place, bounds, layoutDirection());
    };
    const qreal icon = appearance.scaled(iconSize);
    appearance.paintIcon(painter, at(padding, icon, icon), m_row.symbol, Role::Text2);

    const qreal labelLeft = padding + icon + labelBegins - padding - iconSize;
    const qreal valueLeft = bounds.width() - padding - appearance.scaled(valueWidth);
    const qreal graphLeft = valueLeft - appearance.scaled(graphWidth);
    const bool hasGraph = m_row.share || m_row.kind == Kind::Processor;
    const qreal labelWidth = (hasGraph ? graphLeft - 8 : valueLeft) - labelLeft;
    const auto labelFont = appearance.font(TextRole::Body, QFont::Medium);
    const auto noteFont = appearance.font(TextRole::Mini, QFont::Normal);
    const QFontMetricsF labelMetrics(labelFont);
    const QFontMetricsF noteMetrics(noteFont);
    const qreal textHeight = labelMetrics.height() + (m_row.note.isEmpty() ? 0 : noteMetrics.height());
    auto text = at(labelLeft, labelWidth, textHeight);
    painter.setFont(labelFont);
    painter.setPen(appearance.color(Role::Text));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignTop,
                     labelMetrics.elidedText(m_row.label, Qt::ElideRight, labelWidth));
    painter.setFont(noteFont);
    painter.setPen(appearance.color(Role::Text3));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom,
                     noteMetrics.elidedText(m_row.note, Qt::ElideRight, labelWidth));

    if (hasGraph)
        paintGraph(painter, at(graphLeft, appearance.scaled(graphWidth), appearance.scaled(graphHeight)));
    paintValue(painter, line.adjusted(padding, 0, -padding, 0));
}

void MonitorRowView::paintGraph(QPainter &painter, const QRectF &place) const
{
    const auto &appearance = Appearance::current();
    if (m_row.share) {
        QRectF track(place.left(), 0, place.width(), barHeight);
        track.moveCenter(QPointF(track.center().x(), place.center().y()));
        paintBox(painter, track, barHeight / 2.0, appearance.color(Role::Hairline), {});
        auto bar = track;
        bar.setWidth(std::max(track.width() * std::clamp(*m_row.share, 0.0, 1.0), qreal(barHeight)));
        paintBox(painter, placed(bar, track, layoutDirection()), barHeight / 2.0,
                 appearance.color(barRole(m_row)), {});
        return;
    }
    const auto shown = std::min(m_history.size(), graphSamples);
    if (shown < 2)
        return;
    const auto first = m_history.end() - static_cast<std::ptrdiff_t>(shown);
    const double highest = *std::max_element(first, m_history.end());
    const double top = highest <= 0.25 ? 0.25 : highest <= 0.5 ? 0.5 : 1;
    QPolygonF curve;
    for (std::size_t i = 0; i < shown; ++i) {
        const double age = static_cast<double>(shown - 1 - i) / static_cast<double>(graphSamples - 1);
        const double value = std::clamp(first[static_cast<std::ptrdiff_t>(i)] / top, 0.0, 1.0);
        curve << QPointF(place.right() - age * place.width(), place.bottom() - value * place.height());
    }
    auto area = appearance.color(Role::ChartProcessor);
    area.setAlphaF(graphArea);
    auto outline = curve;
    outline << place.bottomRight() << QPointF(curve.front().x(), place.bottom());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(area);
    painter.drawPolygon(outline);
    painter.setPen(
        QPen(appearance.color(Role::ChartProcessor), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
    painter.drawPolyline(curve);
    painter.restore();
}

/// In one line or in several, at the trailing edge, with the mark of a verdict before it.
void MonitorRowView::paintValue(QPainter &painter, const QRectF &place) const
{
    auto &appearance = Appearance::current();
    const auto lines = m_row.value.split(u'\n');
    const auto font = appearance.font(lines.size() > 1 ? TextRole::Small : TextRole::Body, QFont::DemiBold);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(appearance.color(Role::Text));
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    qreal top = place.center().y() - metrics.height() * static_cast<qreal>(lines.size()) / 2;
    for (const auto &line : lines) {
        drawTabular(painter, {place.left(), top, place.width(), metrics.height()},
                    mirrored ? Qt::AlignLeft : Qt::AlignRight, line);
        top += metrics.height();
    }
    if (!m_row.concern || m_row.share)
        return;
    const auto style = styleOf(*m_row.concern);
    const qreal mark = appearance.scaled(markSize);
    const qreal left = place.right() - tabularWidth(font, m_row.value) - markGap - mark;
    appearance.paintIcon(painter,
                         placed({left, place.center().y() - mark / 2, mark, mark}, rect(), layoutDirection()),
                         style.symbol, style.mark);
}

} // namespace quillmark::app
