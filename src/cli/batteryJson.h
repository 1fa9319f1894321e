// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"

#include <QByteArray>

#include <vector>

namespace quillmark::cli {

/// The object "battery-v1" (docs/contracts.md), UTF-8, indented, ending with a line break. Words in it are
/// the same in every language.
QByteArray batteryJson(const std::vector<battery::BatteryReading> &batteries);

} // namespace quillmark::cli
