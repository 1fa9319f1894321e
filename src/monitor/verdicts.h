// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "monitor/MonitorSample.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace quillmark::monitor {

/// The part of 0…1 that the pressure figure moves in while the kernel is at a level.
struct PressureBand
{
    double from = 0;
    double to = 1;
};

/// Of the level as the kernel numbers it: 1 normal, 2 warning, 4 critical. All of 0…1 when it does not tell,
/// or tells another. So a chart shows the kernel's verdict first, and the figures of pages only within it.
PressureBand bandOf(std::optional<std::int32_t> level);

enum class PressureVerdict { Normal, Elevated, Critical };

/// The verdict whose band the figure lies in.
PressureVerdict pressureVerdict(double pressure);

/// "Pressure normal", "Pressure elevated", "Pressure critical"
QString title(PressureVerdict verdict);

/// "Normal", "Warm", "Hot", "Critical", "Unknown": plainer words than the system's own.
QString title(ThermalState state);

/// How much a figure asks to be looked at.
enum class Concern { None, Note, Warning, Alarm };

Concern concernOf(PressureVerdict verdict);
Concern concernOf(ThermalState state);

} // namespace quillmark::monitor
