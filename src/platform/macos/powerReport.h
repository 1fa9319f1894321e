// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <optional>

namespace quillmark::platform {

/// What `system_profiler SPPowerDataType -json` tells under "sppower_battery_health_info":
/// "sppower_battery_health" ("Good"), "sppower_battery_health_maximum_capacity" ("94%"), … None without a
/// battery. Takes seconds; after ten the answer is given up.
std::optional<PropertyMap> readPowerReport();

} // namespace quillmark::platform
