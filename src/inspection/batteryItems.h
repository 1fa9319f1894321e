// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryJudgement.h"
#include "battery/BatteryReading.h"
#include "inspection/CapabilityModel.h"
#include "language/Formats.h"

#include <QList>
#include <QString>

#include <cstdint>

namespace quillmark::inspection {

/// How a row shows the rating.
CapabilityStatus statusOf(battery::Rating rating);

/// "5,744 mAh", "52.1 Wh"
QString capacityText(std::int64_t capacity, battery::CapacityUnit unit, const language::Formats &formats);
/// "31.4 °C"
QString temperatureText(double celsius, const language::Formats &formats);

/// The rows about a battery that is there, from its health to the time that remains. On a Mac its condition
/// has a row even when it is not told.
QList<CapabilityItem> batteryItems(const battery::BatteryReading &reading, bool onMac,
                                   const language::Formats &formats);

} // namespace quillmark::inspection
