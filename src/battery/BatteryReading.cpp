// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/BatteryReading.h"

#include "battery/figures.h"
#include "battery/supplyReading.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quillmark::battery {

namespace {

using platform::find;
using platform::get;
using platform::PropertyMap;

std::optional<std::string> word(const PropertyMap &source, std::string_view key)
{
    auto text = get<std::string>(source, key);
    return text && !text->empty() ? text : std::nullopt;
}

/// From the battery's service or, where that lacks it, from the dictionary within it.
std::optional<std::int64_t> nested(const PropertyMap &service, std::string_view key, std::int64_t least)
{
    const auto *data = find<PropertyMap>(service, "BatteryData");
    for (const PropertyMap *properties : {&service, data}) {
        const auto number = properties ? get<std::int64_t>(*properties, key) : std::nullopt;
        if (number && *number >= least)
            return number;
    }
    return std::nullopt;
}

std::optional<std::int64_t> presentCapacity(const PropertyMap &service, bool isAppleSilicon)
{
    for (const std::string_view key : {"AppleRawMaxCapacity", "NominalChargeCapacity"}) {
        if (const auto capacity = nested(service, key, 1))
            return capacity;
    }
    // On Apple silicon it is a percentage, and always 100.
    const auto maximum = get<std::int64_t>(service, "MaxCapacity");
    return maximum && *maximum > (isAppleSilicon ? 100 : 0) ? maximum : std::nullopt;
}

/// A negative current is there as a number of 64 bits or of 32, and either may have been printed as if it had
/// no sign.
std::optional<std::int64_t> signedCurrent(const PropertyMap &service)
{
    if (const auto large = get<std::uint64_t>(service, "Amperage"))
        return static_cast<std::int64_t>(*large);
    const auto current = get<std::int64_t>(service, "Amperage");
    constexpr std::int64_t half = std::int64_t{1} << 31;
    return current && *current >= half && *current < 2 * half ? *current - 2 * half : current;
}

std::optional<double> levelOf(const PropertyMap &source)
{
    const auto current = get<std::int64_t>(source, "Current Capacity");
    const auto maximum = get<std::int64_t>(source, "Max Capacity").value_or(100);
    if (!current || maximum <= 0)
        return std::nullopt;
    return static_cast<double>(*current) / static_cast<double>(maximum);
}

std::optional<bool> onACOf(const PropertyMap &source)
{
    const auto state = get<std::string>(source, "Power Source State");
    if (state == "AC Power")
        return true;
    return state == "Battery Power" ? std::optional(false) : std::nullopt;
}

/// Intel Macs hold a full battery a little below 100 %.
bool isFull(const BatteryReading &reading, const PropertyMap &source, bool isAppleSilicon)
{
    constexpr int fullOnIntel = 95;
    const int percent = chargePercent(reading).value_or(0);
    return get<bool>(source, "Is Charged") == true || percent == 100 ||
           (!isAppleSilicon && percent >= fullOnIntel && reading.isCharging == false);
}

std::optional<ChargeState> chargeStateOf(const BatteryReading &reading, const PropertyMap &source,
                                         bool isAppleSilicon)
{
    if (reading.isCharging != true && reading.onAC == false)
        return ChargeState::OnBattery;
    if (reading.onAC == true && isFull(reading, source, isAppleSilicon))
        return ChargeState::Full;
    if (reading.isCharging == true)
        return ChargeState::Charging;
    return reading.onAC == true && reading.isCharging == false ? std::optional(ChargeState::NotCharging)
                                                               : std::nullopt;
}

std::optional<TimeRemaining> timeRemainingOf(const PropertyMap &source, std::optional<ChargeState> state)
{
    const bool untilFull = state == ChargeState::Charging;
    if (!untilFull && state != ChargeState::OnBattery)
        return std::nullopt;
    const auto minutes = get<std::int64_t>(source, untilFull ? "Time to Full Charge" : "Time to Empty");
    if (minutes == -1 || minutes == 65535)
        return TimeRemaining{.untilFull = untilFull};
    return minutes ? timeRemaining(static_cast<double>(*minutes), untilFull) : std::nullopt;
}

void readSource(BatteryReading &reading, const PropertyMap &source, bool isAppleSilicon)
{
    reading.name = word(source, "Name");
    reading.level = levelOf(source);
    reading.isCharging = get<bool>(source, "Is Charging");
    reading.onAC = onACOf(source);
    reading.chargeState = chargeStateOf(reading, source, isAppleSilicon);
    reading.timeRemaining = timeRemainingOf(source, reading.chargeState);
    reading.health = word(source, "BatteryHealth");
    reading.condition = word(source, "BatteryHealthCondition");
}

void readService(BatteryReading &reading, const PropertyMap &service, bool isAppleSilicon)
{
    reading.designCapacity = nested(service, "DesignCapacity", 1);
    reading.presentCapacity = presentCapacity(service, isAppleSilicon);
    reading.cycleCount = nested(service, "CycleCount", 0);
    // "DesignCycleCount70" beside it means nothing.
    if (const auto rated = get<std::int64_t>(service, "DesignCycleCount9C"); rated && *rated > 0)
        reading.ratedCycleCount = rated;
    constexpr std::int64_t absoluteZero = -27'315;
    reading.temperature = temperature(get<std::int64_t>(service, "Temperature"), absoluteZero);
    if (const auto voltage = get<std::int64_t>(service, "Voltage"); voltage && *voltage > 0)
        reading.voltage = voltage;
    reading.current = signedCurrent(service);
    reading.failureBits = get<std::int64_t>(service, "PermanentFailureStatus");
}

/// A Mac has one at most.
std::optional<BatteryReading> readMacBattery(const platform::Machine &machine, bool isAppleSilicon)
{
    const auto sources = machine.power().powerSources().value_or(std::vector<PropertyMap>());
    const auto source = std::ranges::find_if(sources, [](const PropertyMap &properties) {
        return get<std::string>(properties, "Type") == "InternalBattery";
    });
    if (source == sources.end())
        return std::nullopt;
    BatteryReading reading;
    const auto services = machine.registry().services("AppleSmartBattery");
    if (!services.empty()) {
        if (get<bool>(services.front(), "BatteryInstalled") == false)
            return std::nullopt;
        readService(reading, services.front(), isAppleSilicon);
    }
    readSource(reading, *source, isAppleSilicon);
    return reading;
}

} // namespace

std::vector<BatteryReading> readBatteries(const platform::Machine &machine, bool isAppleSilicon)
{
    return readBatteries(machine, machine.power().powerSupplies(), isAppleSilicon);
}

std::vector<BatteryReading> readBatteries(const platform::Machine &machine,
                                          const std::optional<Supplies> &supplies, bool isAppleSilicon)
{
    if (supplies)
        return readBatteries(*supplies);
    const auto battery = readMacBattery(machine, isAppleSilicon);
    return battery ? std::vector{*battery} : std::vector<BatteryReading>();
}

std::optional<BatteryReading> readBattery(const platform::Machine &machine, bool isAppleSilicon)
{
    return readBattery(machine, machine.power().powerSupplies(), isAppleSilicon);
}

std::optional<BatteryReading> readBattery(const platform::Machine &machine,
                                          const std::optional<Supplies> &supplies, bool isAppleSilicon)
{
    const auto batteries = readBatteries(machine, supplies, isAppleSilicon);
    return batteries.empty() ? std::nullopt : std::optional(batteries.front());
}

std::optional<int> reportedMaximumPercent(const platform::Machine &machine)
{
    const auto report = machine.power().powerReport();
    const auto text =
        report ? get<std::string>(*report, "sppower_battery_health_maximum_capacity") : std::nullopt;
    if (!text)
        return std::nullopt;
    // The sign stands where the system's language puts it: "94%", "94 %", "%94".
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto first = std::ranges::find_if(*text, isDigit);
    int percent = 0;
    constexpr int most = 100;
    for (auto digit = first; digit != text->end() && isDigit(*digit) && percent <= most; ++digit)
        percent = percent * 10 + (*digit - '0');
    return text->contains('%') && percent >= 1 && percent <= most ? std::optional(percent) : std::nullopt;
}

std::optional<int> chargePercent(const BatteryReading &reading)
{
    if (!reading.level || *reading.level < 0 || *reading.level > 1)
        return std::nullopt;
    return static_cast<int>(std::lround(*reading.level * 100));
}

} // namespace quillmark::battery
