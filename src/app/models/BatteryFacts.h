// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryJudgement.h"
#include "battery/BatteryReading.h"
#include "inspection/CapabilityModel.h"
#include "language/Formats.h"

#include <QString>

#include <optional>

namespace quillmark::app {

/// A figure of a battery as a tile shows it.
struct BatteryFigure
{
    QString figure; ///< a dash where it is not reported
    QString note;
    std::optional<double> share; ///< of the bar or scale, from 0 to 1
    inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
    bool isReported = true;
};

/// Everything that the window says about one battery, in the language of the formats.
struct BatteryFacts
{
    QString name; ///< the system's, for where there are several
    inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
    std::optional<int> percent; ///< of the design capacity
    QString description;        ///< of the ring, for screen readers
    QString headline;
    QString word;     ///< how it is, in short; empty: not told
    QString sentence; ///< what that means
    QString presentCapacity;
    QString designCapacity;
    std::optional<double> presentShare; ///< of the design capacity, from 0 to 1
    QString reported;                   ///< the system's own figure; empty: there is none
    BatteryFigure charge;
    BatteryFigure cycles;
    BatteryFigure temperature;
    BatteryFigure condition;
};

/// The ends of the normal temperature on the scale of BatteryFacts::temperature, from 0 to 1.
inline constexpr double normalWarmthBegin = 10 / 50.0;
inline constexpr double normalWarmthEnd = 45 / 50.0;

BatteryFacts batteryFacts(const battery::BatteryReading &reading, const language::Formats &formats);

} // namespace quillmark::app
