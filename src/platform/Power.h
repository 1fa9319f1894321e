// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <vector>

namespace quillmark::platform {

/// Batteries and other power sources.
class Power
{
public:
    virtual ~Power() = default;

    /// One dictionary a source, in the system's order, with the keys of IOKit/ps/IOPSKeys.h: "Type" ("InternalBattery",
    /// "UPS"), "Current Capacity" and "Max Capacity" (percent), "Is Charging", "Power Source State" ("AC Power", "Battery
    /// Power"), … Empty on a desktop computer.
    virtual std::vector<PropertyMap> powerSources() const = 0;
};

} // namespace quillmark::platform
