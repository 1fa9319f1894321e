// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/ChartTrace.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace quillmark::app {

using monitor::ChartPoint;

namespace {

constexpr qreal lineWidth = 1.75; // logical pixels
constexpr float areaAtTop = 0.26F;
constexpr float areaAtBase = 0.03F;

bool isSameMoment(const ChartPoint &now, const ChartPoint &before)
{
    return now.value == before.value && now.joinsPrevious == before.joinsPrevious;
}

/// Whether `now` is `before` and one sample more, of which the oldest may have been dropped.
bool continues(const std::vector<ChartPoint> &now, const std::vector<ChartPoint> &before)
{
    if (now.size() < 2 || before.empty() || now.size() > before.size() + 1)
        return false;
    const auto kept = now.size() - 1;
    const auto *old = before.data() + (before.size() - kept);
    // What came before the oldest one is not known any more.
    if (now.front().value != old[0].value)
        return false;
    return std::equal(now.begin() + 1, now.end() - 1, old + 1, isSameMoment);
}

} // namespace

int ChartTrace::margin() const
{
    return static_cast<int>(std::ceil(lineWidth * m_shape.ratio / 2)) + 1;
}

void ChartTrace::update(std::vector<Line> lines, const Shape &shape)
{
    const auto step = stepTo(lines);
    const auto isSameLine = [](const Line &now, const Line &before) {
        return now.color == before.color && now.isFilled == before.isFilled;
    };
    bool movesOn =
        step && shape == m_shape && !m_picture.isNull() && std::ranges::equal(lines, m_lines, isSameLine);
    const int columnBefore = columnAt(m_newest);
    m_newest = step ? m_newest + *step : 0;
    m_lines = std::move(lines);
    m_shape = shape;
    movesOn = movesOn && m_tops == tops();
    m_tops = tops();
    if (movesOn && *step == 0)
        return;
    const int columns = columnAt(m_newest) - columnBefore;
    if (!movesOn || columns >= m_shape.plot.width()) {
        const QSize size(m_shape.plot.width(), m_shape.plot.height() + 2 * margin());
        if (m_picture.size() != size)
            m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        draw(0);
        return;
    }
    scroll(columns);
    // The sample before the newest was the end of the line until now.
    draw(std::max(m_shape.plot.width() - columns - margin(), 0));
}

/// The seconds from the newest sample so far to the newest of these, 0 when they are the same; none when they
/// are others.
std::optional<double> ChartTrace::stepTo(const std::vector<Line> &lines) const
{
    if (lines.size() != m_lines.size() || lines.empty())
        return std::nullopt;
    const auto arePointsEqual = [](const Line &now, const Line &before) {
        return now.points == before.points;
    };
    if (std::ranges::equal(lines, m_lines, arePointsEqual))
        return 0;
    const auto doContinue = [](const Line &now, const Line &before) {
        return continues(now.points, before.points);
    };
    if (!std::ranges::equal(lines, m_lines, doContinue))
        return std::nullopt;
    const auto &points = lines.front().points;
    return points[points.size() - 2].age;
}

/// Counted from somewhere left of the plot, or within it.
int ChartTrace::columnAt(double seconds) const
{
    // Half a column must come out the same however the seconds were summed up.
    constexpr double tie = 0.5 + 1e-6;
    return static_cast<int>(std::floor(seconds * m_shape.plot.width() / monitor::chartSeconds + tie));
}

/// Within the plot, whose right edge is the newest sample's.
int ChartTrace::columnOf(const ChartPoint &point) const
{
    return m_shape.plot.width() - (columnAt(m_newest) - columnAt(m_newest - point.age));
}

/// The rows at which the areas are strongest.
std::vector<int> ChartTrace::tops() const
{
    std::vector<int> rows;
    for (const auto &line : m_lines) {
        const auto highest = std::ranges::max_element(line.points, {}, &ChartPoint::value);
        if (line.isFilled && highest != line.points.end())
            rows.push_back(margin() + static_cast<int>(m_shape.plot.height() * (1 - highest->value)));
    }
    return rows;
}

void ChartTrace::scroll(int columns)
{
    constexpr std::size_t pixelBytes = 4;
    const auto gone = static_cast<std::size_t>(columns) * pixelBytes;
    const auto kept = static_cast<std::size_t>(m_picture.width()) * pixelBytes - gone;
    for (int row = 0; row < m_picture.height(); ++row) {
        auto *pixels = m_picture.scanLine(row);
        std::memmove(pixels, pixels + gone, kept);
    }
}

/// Clears the picture from this column on, and draws what stands there.
void ChartTrace::draw(int fromColumn)
{
    const int base = margin() + m_shape.plot.height();
    const QRect part(fromColumn, 0, m_picture.width() - fromColumn, m_picture.height());
    QPainter painter(&m_picture);
    painter.setClipRect(part);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(part, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);

    const QPolygonF::size_type reach = margin();
    auto top = m_tops.begin();
    for (const auto &line : m_lines) {
        QBrush area;
        if (line.isFilled && top != m_tops.end()) {
            QLinearGradient gradient(0, *top++, 0, base);
            auto color = line.color;
            color.setAlphaF(areaAtTop);
            gradient.setColorAt(0, color);
            color.setAlphaF(areaAtBase);
            gradient.setColorAt(1, color);
            area = gradient;
        }
        // Qt 6.4 leaves a blot where a round join turns by very little.
        const QPen pen(line.color, lineWidth * m_shape.ratio, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
        const auto drawStretch = [&](const QPolygonF &stretch) {
            if (line.isFilled && stretch.size() > 1) {
                auto outline = stretch;
                outline << QPointF(stretch.back().x(), base) << QPointF(stretch.front().x(), base);
                painter.setPen(Qt::NoPen);
                painter.setBrush(area);
                painter.drawPolygon(outline);
            }
            painter.setPen(pen);
            if (stretch.size() == 1)
                painter.drawPoint(stretch.front());
            else
                painter.drawPolyline(stretch);
        };
        const auto &points = line.points;
        std::size_t first = points.size();
        while (first > 0 && columnOf(points[first - 1]) >= fromColumn - reach)
            --first;
        first = first > 0 ? first - 1 : 0;
        QPolygonF stretch;
        for (std::size_t i = first; i < points.size(); ++i) {
            if (!points[i].joinsPrevious && !stretch.isEmpty()) {
                drawStretch(stretch);
                stretch.clear();
            }
            stretch << QPointF(columnOf(points[i]), margin() + m_shape.plot.height() * (1 - points[i].value));
        }
        if (!stretch.isEmpty())
            drawStretch(stretch);
    }
}

} // namespace quillmark::app
