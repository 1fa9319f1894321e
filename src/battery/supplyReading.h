// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"

#include <vector>

// The power supplies of Linux.

namespace quillmark::battery {

/// The batteries that power the machine itself, by name.
std::vector<BatteryReading> readBatteries(const Supplies &supplies);

/// Whether the supply brings power from outside now.
bool bringsPower(const platform::PropertyMap &supply);

/// Whether the supply is a UPS that the machine lives on now.
bool isDrainedUps(const platform::PropertyMap &supply);

} // namespace quillmark::battery
