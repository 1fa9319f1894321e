// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

/// How the machine is powered and set to use it.
struct PowerSettings
{
    std::optional<std::string> providingSource; ///< "AC Power", "Battery Power", "UPS Power"
    std::optional<bool> lowPowerModeEnabled;
    /// IOPSCopyExternalPowerAdapterDetails: "Watts", "Current" (mA), "AdapterVoltage" (mV), "Name", …
    std::optional<PropertyMap> externalAdapter;
    std::optional<std::string> platformProfile; ///< Linux: the firmware's word, "balanced"

    bool operator==(const PowerSettings &) const = default;
};

/// Batteries and other power sources.
class Power
{
public:
    virtual ~Power() = default;

    /// One dictionary a source, in the system's order, with the keys of IOKit/ps/IOPSKeys.h: "Type"
    /// ("InternalBattery", "UPS"), "Current Capacity" and "Max Capacity" (percent), "Is Charging", "Power
    /// Source State" ("AC Power", "Battery Power"), … Empty on a desktop computer,
    /// none when there is no list to be had.
    virtual std::optional<std::vector<PropertyMap>> powerSources() const = 0;

    virtual PowerSettings settings() const = 0;

    /// Linux: the properties of each supply as the kernel lists them in its uevent file ("POWER_SUPPLY_TYPE":
    /// "Battery", all of them texts), by the supply's name, without those that identify it. None on a Mac,
    /// and where they cannot be read.
    virtual std::optional<std::map<std::string, PropertyMap>> powerSupplies() const = 0;

    /// macOS: what `system_profiler SPPowerDataType -json` tells under "sppower_battery_health_info":
    /// "sppower_battery_health" ("Good"), "sppower_battery_health_maximum_capacity" ("94%"), … None without a
    /// battery, on other systems, and where the answer takes longer than ten seconds. It takes seconds in any
    /// case, so an inspection does not ask.
    virtual std::optional<PropertyMap> powerReport() const = 0;
};

/// Whether a property of a supply tells it from others of its kind: its serial number, maker and model.
inline bool identifiesSupply(std::string_view property)
{
    return property == "POWER_SUPPLY_SERIAL_NUMBER" || property == "POWER_SUPPLY_MANUFACTURER" ||
           property == "POWER_SUPPLY_MODEL_NAME";
}

} // namespace quillmark::platform
