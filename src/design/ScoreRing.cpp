// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "design/ScoreRing.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillmark::design {

namespace {

constexpr qreal gap = 4; // degrees

/// Qt measures anticlockwise from 3 o’clock, in sixteenths of a degree.
int sixteenths(qreal degrees)
{
    return static_cast<int>(std::lround(degrees * 16));
}

} // namespace

std::vector<RingArc> scoreRing(qsizetype supported, qsizetype warning, qsizetype unsupported)
{
    const std::array<std::pair<Role, qsizetype>, 3> parts = {
        {{Role::Supported, supported}, {Role::Warning, warning}, {Role::Unsupported, unsupported}}};
    const auto present = std::ranges::count_if(parts, [](const auto &part) { return part.second > 0; });
    const qreal between = present > 1 ? gap : 0;
    const qreal rated = static_cast<qreal>(supported + warning + unsupported);
    std::vector<RingArc> arcs;
    qreal start = between / 2;
    for (const auto &[role, count] : parts) {
        if (count == 0)
            continue;
        const qreal sweep = (360 - between * static_cast<qreal>(present)) * static_cast<qreal>(count) / rated;
        arcs.push_back({role, start, sweep});
        start += sweep + between;
    }
    return arcs;
}

void paintRing(QPainter &painter, const QRectF &square, qreal stroke, const std::vector<RingArc> &arcs,
               const Theme &theme)
{
    const qreal inset = stroke / 2;
    const auto middle = square.adjusted(inset, inset, -inset, -inset);
    const auto band = [&](Role role, qreal start, qreal sweep) {
        painter.setPen(QPen(theme.color(role), stroke, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(middle, sixteenths(90 - start), sixteenths(-sweep));
    };
    painter.save();
    painter.setBrush(Qt::NoBrush);
    if (arcs.empty())
        band(Role::CardBorder, 0, 360);
    for (const auto &arc : arcs)
        band(arc.role, arc.start, arc.sweep);
    painter.restore();
}

} // namespace quillmark::design
