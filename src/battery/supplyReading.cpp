// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/supplyReading.h"

#include "battery/figures.h"
#include "platform/parseNumber.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quillmark::battery {

namespace {

using platform::find;
using platform::PropertyMap;

std::string_view textOf(const PropertyMap &supply, std::string_view property)
{
    const auto *text = find<std::string>(supply, "POWER_SUPPLY_" + std::string(property));
    return text ? std::string_view(*text) : std::string_view();
}

std::optional<std::int64_t> numberOf(const PropertyMap &supply, std::string_view property)
{
    return platform::parseNumber<std::int64_t>(textOf(supply, property));
}

/// The kernel counts in millionths, this program in thousandths.
std::optional<std::int64_t> thousandths(std::optional<std::int64_t> millionths)
{
    return millionths ? std::optional(std::llround(static_cast<double>(*millionths) / 1000)) : std::nullopt;
}

std::optional<std::int64_t> positive(std::optional<std::int64_t> number)
{
    return number && *number > 0 ? number : std::nullopt;
}

bool isOwnBattery(const PropertyMap &supply)
{
    return textOf(supply, "TYPE") == "Battery" && textOf(supply, "SCOPE") != "Device" &&
           textOf(supply, "PRESENT") != "0";
}

/// What the supplies together say of where the power comes from.
struct Surroundings
{
    bool isLineOnline = false;
    bool runsOnBattery = false; ///< no line is online, and a battery of the machine's own is drained
};

Surroundings surroundingsOf(const Supplies &supplies)
{
    const bool isLineOnline =
        std::ranges::any_of(supplies, [](const auto &supply) { return bringsPower(supply.second); });
    const bool isOneDrained = std::ranges::any_of(supplies, [](const auto &supply) {
        return isOwnBattery(supply.second) && textOf(supply.second, "STATUS") == "Discharging";
    });
    return {.isLineOnline = isLineOnline, .runsOnBattery = isOneDrained && !isLineOnline};
}

/// Whether the machine runs on power from outside; none when neither a line nor the battery tells.
std::optional<bool> runsOnLine(std::string_view status, const Surroundings &surroundings)
{
    if (surroundings.runsOnBattery)
        return false;
    if (surroundings.isLineOnline || status == "Charging" || status == "Not charging" || status == "Full")
        return true;
    return std::nullopt;
}

std::optional<ChargeState> chargeStateOf(std::string_view status, const Surroundings &surroundings)
{
    if (status == "Charging")
        return ChargeState::Charging;
    if (status == "Full")
        return ChargeState::Full;
    // Of two batteries one waits while the other is drained.
    if (surroundings.runsOnBattery && (status == "Discharging" || status == "Not charging"))
        return ChargeState::OnBattery;
    // A battery may be drained on purpose, or help a weak adapter, while it is connected.
    return status == "Not charging" || status == "Discharging" ? std::optional(ChargeState::NotCharging)
                                                               : std::nullopt;
}

void readCapacities(BatteryReading &reading, const PropertyMap &supply)
{
    std::string kind = "CHARGE";
    if (!positive(numberOf(supply, "CHARGE_FULL_DESIGN")) &&
        positive(numberOf(supply, "ENERGY_FULL_DESIGN"))) {
        kind = "ENERGY";
        reading.unit = CapacityUnit::MilliwattHours;
    }
    reading.designCapacity = positive(thousandths(numberOf(supply, kind + "_FULL_DESIGN")));
    reading.presentCapacity = positive(thousandths(numberOf(supply, kind + "_FULL")));
}

std::optional<TimeRemaining> timeRemainingOf(const PropertyMap &supply, ChargeState state)
{
    const bool untilFull = state == ChargeState::Charging;
    if (!untilFull && state != ChargeState::OnBattery)
        return std::nullopt;
    const bool byEnergy = numberOf(supply, "ENERGY_NOW").has_value();
    const std::string kind = byEnergy ? "ENERGY" : "CHARGE";
    const auto now = numberOf(supply, kind + "_NOW");
    const auto full = numberOf(supply, kind + "_FULL");
    // Drivers differ on the sign.
    const double rate =
        std::abs(static_cast<double>(numberOf(supply, byEnergy ? "POWER_NOW" : "CURRENT_NOW").value_or(0)));
    if (!now || (untilFull && !full) || rate == 0)
        return std::nullopt;
    const double amount =
        untilFull ? static_cast<double>(*full) - static_cast<double>(*now) : static_cast<double>(*now);
    const double minutes = amount / rate * 60;
    return timeRemaining(minutes, untilFull);
}

/// Drivers that do not tell it leave it to be worked out.
std::optional<double> levelOf(const PropertyMap &supply)
{
    if (const auto percent = numberOf(supply, "CAPACITY"); percent && *percent >= 0)
        return static_cast<double>(std::min<std::int64_t>(*percent, 100)) / 100;
    for (const std::string kind : {"ENERGY", "CHARGE"}) {
        const auto now = numberOf(supply, kind + "_NOW");
        const auto full = positive(numberOf(supply, kind + "_FULL"));
        if (now && full && *now >= 0)
            return std::min(static_cast<double>(*now) / static_cast<double>(*full), 1.0);
    }
    return std::nullopt;
}

/// The kernel's sign differs from driver to driver.
std::optional<std::int64_t> signedCurrent(const PropertyMap &supply, std::string_view status)
{
    const auto current = thousandths(numberOf(supply, "CURRENT_NOW"));
    if (!current || (status != "Discharging" && status != "Charging"))
        return current;
    return status == "Discharging" ? -std::abs(*current) : std::abs(*current);
}

BatteryReading readSupply(const std::string &name, const PropertyMap &supply,
                          const Surroundings &surroundings)
{
    const std::string_view status = textOf(supply, "STATUS");
    BatteryReading reading;
    reading.name = name;
    readCapacities(reading, supply);
    // Where a driver does not count cycles it says 0.
    reading.cycleCount = positive(numberOf(supply, "CYCLE_COUNT"));
    reading.temperature = temperature(numberOf(supply, "TEMP"), 0);
    reading.voltage = positive(thousandths(numberOf(supply, "VOLTAGE_NOW")));
    reading.current = signedCurrent(supply, status);
    reading.level = levelOf(supply);
    reading.chargeState = chargeStateOf(status, surroundings);
    if (reading.chargeState) {
        reading.isCharging = reading.chargeState == ChargeState::Charging;
        reading.timeRemaining = timeRemainingOf(supply, *reading.chargeState);
    }
    reading.onAC = runsOnLine(status, surroundings);
    if (const auto health = textOf(supply, "HEALTH"); !health.empty() && health != "Unknown")
        reading.health = health;
    if (const auto limit = numberOf(supply, "CHARGE_CONTROL_END_THRESHOLD");
        limit && *limit >= 1 && *limit <= 100)
        reading.chargeLimit = limit;
    return reading;
}

} // namespace

bool bringsPower(const PropertyMap &supply)
{
    const std::string_view type = textOf(supply, "TYPE");
    const bool isLine = type == "Mains" || type == "Wireless" || type.starts_with("USB");
    // 2 is "online with a voltage that can be programmed".
    return isLine && textOf(supply, "SCOPE") != "Device" && numberOf(supply, "ONLINE").value_or(0) > 0;
}

bool isDrainedUps(const PropertyMap &supply)
{
    return textOf(supply, "TYPE") == "UPS" && textOf(supply, "STATUS") == "Discharging";
}

std::vector<BatteryReading> readBatteries(const Supplies &supplies)
{
    const auto surroundings = surroundingsOf(supplies);
    std::vector<BatteryReading> batteries;
    for (const auto &[name, supply] : supplies) {
        if (isOwnBattery(supply))
            batteries.push_back(readSupply(name, supply, surroundings));
    }
    return batteries;
}

} // namespace quillmark::battery
