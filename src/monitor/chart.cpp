// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/chart.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmark::monitor {

namespace {

constexpr double longestJoinedStep = 2.5;
constexpr double lowestAxisTop = 100e3;
constexpr double headroom = 1.1;
constexpr int samplesBeforeShrinking = 5;

void raise(std::optional<double> &column, double value)
{
    column = std::max(column.value_or(value), value);
}

} // namespace

double stepBetween(Date earlier, Date later)
{
    const double step = secondsBetween(earlier, later);
    return step > 0 ? step : 1;
}

bool isGap(double step)
{
    return step > longestJoinedStep;
}

std::vector<ChartPoint> series(std::span<const MonitorModel::Point> points,
                               double MonitorModel::Point::*value)
{
    std::vector<ChartPoint> line(points.size());
    double age = 0;
    for (std::size_t i = points.size(); i-- > 0;) {
        const double step = i > 0 ? stepBetween(points[i - 1].date, points[i].date) : 0;
        line[i] = {age, points[i].*value, i > 0 && !isGap(step)};
        age += step;
    }
    return line;
}

std::vector<std::optional<double>> columns(std::span<const ChartPoint> series, std::size_t count)
{
    std::vector<std::optional<double>> highest(count);
    if (count == 0)
        return highest;
    // The newest sample stands in the middle of the last column, the oldest in that of the first.
    const double last = static_cast<double>(count - 1);
    const double perSecond = last / chartSeconds;
    const auto placeOf = [&](const ChartPoint &point) { return last - point.age * perSecond; };
    for (std::size_t i = 0; i < series.size(); ++i) {
        const double place = placeOf(series[i]);
        if (place > -0.5)
            raise(highest[static_cast<std::size_t>(std::lround(place))], series[i].value);
        if (!series[i].joinsPrevious)
            continue;
        const double from = placeOf(series[i - 1]);
        const double rise = (series[i].value - series[i - 1].value) / std::max(place - from, 1e-9);
        const auto first = static_cast<std::size_t>(std::max(std::ceil(from), 0.0));
        for (auto at = first; static_cast<double>(at) < place; ++at)
            raise(highest[at], series[i - 1].value + (static_cast<double>(at) - from) * rise);
    }
    return highest;
}

double axisTop(double highestRate)
{
    const double least = std::max(headroom * highestRate, lowestAxisTop);
    double power = lowestAxisTop;
    for (;; power *= 10) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            if (factor * power >= least)
                return factor * power;
        }
    }
}

double NetworkAxis::update(double highestRate)
{
    const double needed = axisTop(highestRate);
    m_samplesBelow = needed < m_top ? m_samplesBelow + 1 : 0;
    if (needed > m_top || m_samplesBelow >= samplesBeforeShrinking) {
        m_top = needed;
        m_samplesBelow = 0;
    }
    return m_top;
}

} // namespace quillmark::monitor
