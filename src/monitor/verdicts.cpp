// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/verdicts.h"

#include "monitor/Text.h"

namespace quillmark::monitor {

namespace {

constexpr double elevatedFrom = 0.6;
constexpr double criticalFrom = 0.85;

} // namespace

PressureBand bandOf(std::optional<std::int32_t> level)
{
    switch (level.value_or(0)) {
    case 1:
        return {0, elevatedFrom};
    case 2:
        return {elevatedFrom, criticalFrom};
    case 4:
        return {criticalFrom, 1};
    default:
        return {0, 1};
    }
}

PressureVerdict pressureVerdict(double pressure)
{
    if (pressure >= criticalFrom)
        return PressureVerdict::Critical;
    return pressure >= elevatedFrom ? PressureVerdict::Elevated : PressureVerdict::Normal;
}

QString title(PressureVerdict verdict)
{
    switch (verdict) {
    case PressureVerdict::Normal:
        return Text::tr("Pressure normal");
    case PressureVerdict::Elevated:
        return Text::tr("Pressure elevated");
    case PressureVerdict::Critical:
        break;
    }
    return Text::tr("Pressure critical");
}

QString title(ThermalState state)
{
    switch (state) {
    case ThermalState::Nominal:
        return Text::tr("Normal");
    case ThermalState::Fair:
        return Text::tr("Warm");
    case ThermalState::Serious:
        return Text::tr("Hot");
    case ThermalState::Critical:
        return Text::tr("Critical");
    }
    return Text::tr("Unknown");
}

Concern concernOf(PressureVerdict verdict)
{
    switch (verdict) {
    case PressureVerdict::Normal:
        return Concern::None;
    case PressureVerdict::Elevated:
        return Concern::Warning;
    case PressureVerdict::Critical:
        break;
    }
    return Concern::Alarm;
}

Concern concernOf(ThermalState state)
{
    switch (state) {
    case ThermalState::Nominal:
        return Concern::None;
    case ThermalState::Serious:
        return Concern::Warning;
    case ThermalState::Critical:
        return Concern::Alarm;
    case ThermalState::Fair:
        break;
    }
    return Concern::Note;
}

} // namespace quillmark::monitor
