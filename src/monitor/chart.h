// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "monitor/MonitorModel.h"

#include <optional>
#include <span>
#include <vector>

namespace quillmark::monitor {

/// A chart shows this much, in seconds; its samples are a second apart.
inline constexpr double chartSeconds = 119;

/// The seconds from one sample to the next as a chart counts them. Where the clock was set back between them,
/// or stood still, a second.
double stepBetween(Date earlier, Date later);

/// Whether so long a step is one over which nothing was sampled, so that a line must not cross it.
bool isGap(double step);

/// A point of a chart's line.
struct ChartPoint
{
    double age = 0; ///< seconds before the newest point
    double value = 0;
    bool joinsPrevious = false; ///< the line comes here from the point before; not over a gap

    bool operator==(const ChartPoint &) const = default;
};

/// One series of the history, oldest first. The ages are sums of steps, so that a clock that is set does not
/// tear the chart.
std::vector<ChartPoint> series(std::span<const MonitorModel::Point> points,
                               double MonitorModel::Point::*value);

/// The series as it stands in `count` columns of equal width, the newest sample at the right: the highest
/// that the line reaches within each column, so that no peak is lost in a narrow chart. None where there is
/// no line.
std::vector<std::optional<double>> columns(std::span<const ChartPoint> series, std::size_t count);

/// The figure at the top of a network chart, in bytes a second: the smallest of 1, 2 or 5 times a power of
/// ten that leaves a tenth of headroom over the highest rate, and at least 100 KB/s.
double axisTop(double highestRate);

/// The top of a network chart from sample to sample: it grows at once, and shrinks only after five samples
/// that would have done with less.
class NetworkAxis
{
public:
    /// Takes the highest rate that the chart shows now; the top to draw it with.
    double update(double highestRate);

private:
    double m_top = 0;
    int m_samplesBelow = 0;
};

} // namespace quillmark::monitor
