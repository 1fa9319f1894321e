// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::monitor {

/// A moment of the wall clock, in UTC.
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// Seconds from the one to the other; negative when the clock was set back between them.
inline double secondsBetween(Date earlier, Date later)
{
    return std::chrono::duration<double>(later - earlier).count();
}

/// How hot the machine is (NSProcessInfo.thermalState). A newer system may know further states.
enum class ThermalState : std::int32_t { Nominal = 0, Fair = 1, Serious = 2, Critical = 3 };

/// One reading of the live counters.
struct MonitorSample
{
    Date date;           ///< when it was taken; identifies it
    double cpuUsage = 0; ///< of the whole machine since the reading before, 0…1
    std::vector<double>
        perCoreUsage;             ///< the same by logical core, in the kernel's order; empty when unreadable
    std::int64_t memoryUsed = 0;  ///< bytes: active, wired and compressed
    std::int64_t memoryTotal = 0; ///< bytes installed; 0 when unknown
    double memoryPressure = 0;    ///< 0…1, within the band of the kernel's level: see bandOf()
    std::int64_t swapUsed = 0;    ///< bytes
    ThermalState thermalState = ThermalState::Nominal;
    std::optional<double> batteryLevel; ///< 0…1; none without an internal battery
    std::optional<bool> isCharging;     ///< none exactly when there is no batteryLevel
    double networkInPerSecond = 0;      ///< bytes, over all counted interfaces
    double networkOutPerSecond = 0;     ///< bytes, over all counted interfaces

    Date id() const { return date; }

    bool operator==(const MonitorSample &) const = default;
};

/// Two minutes of samples.
inline constexpr std::size_t maximumSamples = 120;

/// Adds the newest to a history, oldest first, which drops what it then has too many of.
void appendSample(std::vector<MonitorSample> &history, MonitorSample sample);

/// "2026-03-01T09:00:00.250Z"
std::string isoText(Date date);

} // namespace quillmark::monitor
