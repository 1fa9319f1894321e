// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Screen.h"

#include <optional>
#include <span>

namespace quillmark::cli {

/// Cells of a screen.
struct Area
{
    int row = 0;
    int column = 0;
    int width = 0;
    int height = 0;
};

/// How many dots of a curve stand side by side in a cell, and one above the other.
inline constexpr int dotsAcross = 2;
inline constexpr int dotsDown = 4;

/// A filled curve of Braille dots from the left edge of the area on, of one value, 0…1, for each dot across.
/// Even 0 is drawn, as a line along the base; where there is no value there is nothing.
void drawCurve(Screen &screen, const Area &area, std::span<const std::optional<double>> values, Role role);

/// A bar from left to right, in eighths of a cell, over a dotted track; `share` is 0…1.
void drawBar(Screen &screen, int row, int column, int width, double share, Role role);

/// A bar one cell wide that stands on the row `bottom`. Even 0 is drawn, as an eighth.
void drawUprightBar(Screen &screen, int bottom, int column, int height, double share, Role role);

} // namespace quillmark::cli
