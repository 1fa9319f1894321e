// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TerminalChart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace quillmark::cli {

namespace {

constexpr int eighths = 8;
constexpr std::u32string_view leftEighths = U" ▏▎▍▌▋▊▉█";
constexpr std::u32string_view lowerEighths = U" ▁▂▃▄▅▆▇█";

/// So many of `most` parts.
int partsOf(double share, int most)
{
    return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * most));
}

/// What of a number of parts falls into the cell that begins after `before` of them.
int within(int parts, int before, int perCell)
{
    return std::clamp(parts - before, 0, perCell);
}

/// A cell with so many dots from below in its two columns.
char32_t dots(int left, int right)
{
    constexpr std::array<char32_t, dotsDown + 1> leftDots = {0, 0x40, 0x44, 0x46, 0x47};
    constexpr std::array<char32_t, dotsDown + 1> rightDots = {0, 0x80, 0xA0, 0xB0, 0xB8};
    constexpr char32_t noDots = 0x2800;
    return noDots + (leftDots[static_cast<std::size_t>(left)] | rightDots[static_cast<std::size_t>(right)]);
}

} // namespace

void drawCurve(Screen &screen, const Area &area, std::span<const std::optional<double>> values, Role role)
{
    const auto heightAt = [&](std::size_t place) {
        const int most = area.height * dotsDown;
        return place < values.size() && values[place] ? std::max(partsOf(*values[place], most), 1) : 0;
    };
    for (int cell = 0; cell < area.width; ++cell) {
        const auto place = static_cast<std::size_t>(dotsAcross * cell);
        const int left = heightAt(place);
        const int right = heightAt(place + 1);
        for (int below = 0; below < std::max(left, right); below += dotsDown)
            screen.put(area.row + area.height - 1 - below / dotsDown, area.column + cell,
                       dots(within(left, below, dotsDown), within(right, below, dotsDown)), role);
    }
}

void drawBar(Screen &screen, int row, int column, int width, double share, Role role)
{
    const int parts = partsOf(share, width * eighths);
    for (int cell = 0; cell < width; ++cell) {
        const int lit = within(parts, cell * eighths, eighths);
        screen.put(row, column + cell, lit > 0 ? leftEighths[static_cast<std::size_t>(lit)] : U'·',
                   lit > 0 ? role : Role::Quiet);
    }
}

void drawUprightBar(Screen &screen, int bottom, int column, int height, double share, Role role)
{
    const int parts = std::max(partsOf(share, height * eighths), 1);
    for (int cell = 0; cell < height; ++cell)
        screen.put(bottom - cell, column,
                   lowerEighths[static_cast<std::size_t>(within(parts, cell * eighths, eighths))], role);
}

} // namespace quillmark::cli
