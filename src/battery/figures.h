// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"

#include <cmath>
#include <cstdint>
#include <optional>

// What a figure must be like, from whatever system it comes.

namespace quillmark::battery {

/// In °C, rounded to tenths, as it is shown and judged; none where no battery works.
inline std::optional<double> temperature(std::int64_t hundredths)
{
    constexpr std::int64_t coldest = -2000;
    constexpr std::int64_t hottest = 8000;
    if (hundredths < coldest || hundredths > hottest)
        return std::nullopt;
    return std::floor(static_cast<double>(hundredths + 5) / 10) / 10;
}

/// Of a sensor that counts tenths of a degree from a zero point in hundredths of a degree Celsius.
inline std::optional<double> temperature(std::optional<std::int64_t> tenths, std::int64_t zeroPoint)
{
    constexpr std::int64_t most = 10'000;
    if (!tenths || *tenths < -most || *tenths > most)
        return std::nullopt;
    return temperature(*tenths * 10 + zeroPoint);
}

/// None for a time that has run out, or that no battery lasts.
inline std::optional<TimeRemaining> timeRemaining(double minutes, bool untilFull)
{
    constexpr double longest = 7 * 24 * 60;
    if (!(minutes >= 1 && minutes <= longest))
        return std::nullopt;
    return TimeRemaining{.untilFull = untilFull, .minutes = std::llround(minutes)};
}

} // namespace quillmark::battery
