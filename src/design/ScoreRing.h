// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QRectF>

#include <vector>

class QPainter;

namespace quillmark::design {

/// A part of the ring. Angles in degrees, clockwise from 12 o’clock.
struct RingArc
{
    Role role;
    qreal start;
    qreal sweep;

    bool operator==(const RingArc &) const = default;
};

/// The parts of the score ring, clockwise: supported, warning, not supported, each with its share of what is
/// rated. Gaps stand between several parts, the first half of one before the first. Empty when nothing is
/// rated.
std::vector<RingArc> scoreRing(qsizetype supported, qsizetype warning, qsizetype unsupported);

/// Draws the parts as bands `stroke` wide, within the square; without any, an empty track.
void paintRing(QPainter &painter, const QRectF &square, qreal stroke, const std::vector<RingArc> &arcs,
               const Theme &theme);

} // namespace quillmark::design
