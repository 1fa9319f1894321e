// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"

#include <optional>

// The power supplies of Linux.

namespace quillmark::battery {

/// The first battery that powers the machine itself; none when there is none.
std::optional<BatteryReading> readBattery(const Supplies &supplies);

/// Whether the supply brings power from outside now.
bool bringsPower(const platform::PropertyMap &supply);

/// Whether the supply is a UPS that the machine lives on now.
bool isDrainedUps(const platform::PropertyMap &supply);

} // namespace quillmark::battery
