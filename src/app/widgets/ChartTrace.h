// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "monitor/chart.h"

#include <QColor>
#include <QImage>
#include <QSize>

#include <optional>
#include <vector>

namespace quillmark::app {

/// The lines of a chart as a picture that is moved on with each sample: only what the newest one adds is
/// drawn. For that every sample stands on a whole column of pixels, at most half a column from its moment.
///
/// All lengths are pixels of the screen.
class ChartTrace
{
public:
    struct Line
    {
        std::vector<monitor::ChartPoint> points; ///< oldest first; their values are shares of the height
        QColor color;
        bool isFilled = false; ///< with an area below it, strongest where the line is highest

        bool operator==(const Line &) const = default;
    };

    /// Where and how large: the plot's size, and the pixels of the screen to a logical one.
    struct Shape
    {
        QSize plot;
        qreal ratio = 1;

        bool operator==(const Shape &) const = default;
    };

    /// Lines of the same samples, the first one undermost.
    void update(std::vector<Line> lines, const Shape &shape);
    /// Has the next update draw everything anew.
    void invalidate() { m_picture = {}; }

    /// The plot with margin() above and below it, transparent where there is no line.
    const QImage &picture() const { return m_picture; }
    int margin() const;

private:
    std::optional<double> stepTo(const std::vector<Line> &lines) const;
    int columnAt(double seconds) const;
    int columnOf(const monitor::ChartPoint &point) const;
    std::vector<int> tops() const;
    void scroll(int columns);
    void draw(int fromColumn);

    std::vector<Line> m_lines;
    Shape m_shape;
    double m_newest = 0;     ///< seconds from where the columns are counted to the newest sample
    std::vector<int> m_tops; ///< of the filled lines, as drawn: see tops()
    QImage m_picture;
};

} // namespace quillmark::app
