// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::battery {

enum class CapacityUnit { MilliampereHours, MilliwattHours };

enum class ChargeState { Charging, Full, NotCharging, OnBattery };

/// How long the battery goes on as it does now.
struct TimeRemaining
{
    bool untilFull = false;              ///< else until empty
    std::optional<std::int64_t> minutes; ///< absent while the system still estimates

    bool operator==(const TimeRemaining &) const = default;
};

/// The figures of the machine's own battery, in the same units on every system. A figure that is missing,
/// has another type than it should or cannot be true is absent.
struct BatteryReading
{
    std::optional<std::string> name;             ///< the system's: "BAT0", "InternalBattery-0"
    std::optional<std::int64_t> designCapacity;  ///< in `unit`
    std::optional<std::int64_t> presentCapacity; ///< when full, in `unit`
    CapacityUnit unit = CapacityUnit::MilliampereHours;
    /// Percent of the design capacity by macOS's own reckoning, from 1 to 100. Absent unless it was asked
    /// for: see reportedMaximumPercent().
    std::optional<int> reportedMaximumPercent;
    std::optional<std::int64_t> cycleCount;
    std::optional<std::int64_t> ratedCycleCount;
    std::optional<double> temperature;   ///< °C, in whole tenths
    std::optional<std::int64_t> voltage; ///< mV
    std::optional<std::int64_t> current; ///< mA, negative while discharging
    std::optional<double> level;         ///< from 0 to 1, as far as the system keeps to it
    std::optional<bool> isCharging;
    std::optional<bool> onAC;
    std::optional<ChargeState> chargeState;
    std::optional<TimeRemaining> timeRemaining;
    std::optional<std::string> health;       ///< the system's word: "Good", "Check Battery"
    std::optional<std::string> condition;    ///< macOS: a further word
    std::optional<std::int64_t> failureBits; ///< macOS: 0 is fine
    std::optional<std::int64_t> chargeLimit; ///< percent; Linux

    bool operator==(const BatteryReading &) const = default;
};

/// The properties of each of Linux's power supplies, by its name.
using Supplies = std::map<std::string, platform::PropertyMap>;

/// Every battery that powers the machine itself, in the order of the system's names; empty when there is
/// none. `isAppleSilicon` settles what macOS means by some keys.
std::vector<BatteryReading> readBatteries(const platform::Machine &machine, bool isAppleSilicon);
/// The same where the supplies have been read; absent on a Mac.
std::vector<BatteryReading> readBatteries(const platform::Machine &machine,
                                          const std::optional<Supplies> &supplies, bool isAppleSilicon);

/// The first of them, for which the rows of an inspection stand.
std::optional<BatteryReading> readBattery(const platform::Machine &machine, bool isAppleSilicon);
std::optional<BatteryReading> readBattery(const platform::Machine &machine,
                                          const std::optional<Supplies> &supplies, bool isAppleSilicon);

/// macOS's own figure beside the gauge's. Runs a helper program that may take ten seconds: only for who looks
/// at the battery, and off the main thread. None on other systems.
std::optional<int> reportedMaximumPercent(const platform::Machine &machine);

/// The level as it is shown; none when there is no such level.
std::optional<int> chargePercent(const BatteryReading &reading);

} // namespace quillmark::battery
