// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemInformation.h"

#include <cstdint>

// What NSProcessInfo knows of the machine.

namespace quillmark::platform {

OperatingSystem processOperatingSystem();

/// Bytes.
std::int64_t processPhysicalMemory();

/// Seconds, time asleep not counted.
double processSystemUptime();

/// As SystemInformation::thermalState().
std::int32_t processThermalState();

bool isLowPowerModeEnabled();

} // namespace quillmark::platform
