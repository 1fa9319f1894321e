// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxPower.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace quillmark::platform {

/// The properties of a supply: the lines of its uevent file, which the kernel fills in one go.
struct Supply
{
    std::string_view name;
    std::string_view type;
    std::string_view lines;

    std::string_view text(std::string_view property) const
    {
        return assignedValue(lines, "POWER_SUPPLY_" + std::string(property)).value_or(std::string_view());
    }
    std::optional<std::int64_t> number(std::string_view property) const
    {
        return parseNumber<std::int64_t>(text(property));
    }
};

namespace {

constexpr const char *suppliesFolder = "/sys/class/power_supply/";

PropertyMap propertiesOf(const Supply &supply)
{
    PropertyMap properties;
    for (std::string_view rest = supply.lines; !rest.empty();) {
        const LabelledValue line = splitLabel(takeUntil(rest, '\n'), '=');
        if (line.label.starts_with("POWER_SUPPLY_") && !identifiesSupply(line.label))
            properties[std::string(line.label)].value = std::string(line.value);
    }
    if (!supply.type.empty())
        properties["POWER_SUPPLY_TYPE"].value = std::string(supply.type);
    return properties;
}

bool bringsPower(const Supply &supply)
{
    const bool isLine = supply.type == "Mains" || supply.type == "Wireless" || supply.type.starts_with("USB");
    // 2 is "online with a voltage that can be programmed".
    return isLine && supply.number("ONLINE").value_or(0) > 0;
}

/// Percent of what the battery can hold now.
std::optional<std::int64_t> capacityOf(const Supply &supply)
{
    if (const auto capacity = supply.number("CAPACITY"); capacity && *capacity >= 0)
        return std::min<std::int64_t>(*capacity, 100);
    for (const std::string unit : {"ENERGY", "CHARGE"}) {
        const auto now = supply.number(unit + "_NOW");
        const auto full = supply.number(unit + "_FULL");
        if (now && full && *now >= 0 && *full > 0) {
            const double share = static_cast<double>(*now) / static_cast<double>(*full);
            return std::lround(std::min(share, 1.0) * 100);
        }
    }
    return std::nullopt;
}

/// Whether the machine runs on the line; none when neither a supply nor the battery tells.
std::optional<bool> isOnLine(const Supply &supply, bool isLineOnline)
{
    const std::string_view status = supply.text("STATUS");
    if (isLineOnline)
        return true;
    if (status == "Discharging")
        return false;
    return status == "Charging" || status == "Not charging" || status == "Full" ? std::optional(true)
                                                                                : std::nullopt;
}

PropertyMap describe(const Supply &supply, bool isLineOnline)
{
    const bool isBattery = supply.type == "Battery";
    PropertyMap source;
    source["Type"].value = std::string(isBattery ? "InternalBattery" : "UPS");
    if (isBattery)
        source["Transport Type"].value = std::string("Internal");
    source["Name"].value = std::string(supply.name);
    source["Is Present"].value = true;
    if (const auto capacity = capacityOf(supply)) {
        source["Current Capacity"].value = *capacity;
        source["Max Capacity"].value = std::int64_t{100};
    }
    const std::string_view status = supply.text("STATUS");
    if (!status.empty() && status != "Unknown")
        source["Is Charging"].value = status == "Charging";
    if (status == "Full")
        source["Is Charged"].value = true;
    if (const auto onLine = isOnLine(supply, isLineOnline))
        source["Power Source State"].value = std::string(*onLine ? "AC Power" : "Battery Power");
    const std::string_view health = supply.text("HEALTH");
    if (!health.empty() && health != "Unknown")
        source["BatteryHealth"].value = std::string(health);
    return source;
}

} // namespace

PowerSupplies::PowerSupplies(const Files &files)
    : m_files(files)
    , m_folder(files, suppliesFolder)
{}

std::vector<Supply> PowerSupplies::read()
{
    if (m_folder.hasChanged()) {
        m_supplies.clear();
        for (const std::string &name : m_folder.names())
            m_supplies.push_back(
                {name, {}, HeldFile(m_files, suppliesFolder + name + "/uevent", HeldFile::figures)});
    }
    std::vector<Supply> supplies;
    for (HeldSupply &held : m_supplies) {
        Supply supply = {held.name, {}, trimmed(held.properties.read().value_or(std::string_view()))};
        if (supply.lines.empty())
            continue;
        supply.type = supply.text("TYPE");
        if (supply.type.empty()) {
            // Kernels before 5.8 leave it out.
            if (held.type.empty())
                held.type = m_files.value(suppliesFolder + held.name + "/type").value_or(std::string());
            supply.type = held.type;
        }
        if (supply.text("SCOPE") != "Device")
            supplies.push_back(supply);
    }
    return supplies;
}

std::vector<PropertyMap> PowerSupplies::powerSources()
{
    const std::vector<Supply> supplies = read();
    const bool isLineOnline = std::ranges::any_of(supplies, bringsPower);
    std::vector<PropertyMap> sources;
    for (const std::string_view type : {"Battery", "UPS"}) {
        for (const Supply &supply : supplies) {
            if (supply.type == type && supply.text("PRESENT") != "0")
                sources.push_back(describe(supply, isLineOnline));
        }
    }
    return sources;
}

std::map<std::string, PropertyMap> PowerSupplies::powerSupplies()
{
    std::map<std::string, PropertyMap> all;
    for (const Supply &supply : read()) {
        PropertyMap properties = propertiesOf(supply);
        // Drivers of laptops add this limit beside the properties, out of the uevent file's sight.
        constexpr std::string_view limit = "POWER_SUPPLY_CHARGE_CONTROL_END_THRESHOLD";
        const std::string name(supply.name);
        if (supply.type == "Battery" && !properties.contains(limit)) {
            if (auto percent = m_files.value(suppliesFolder + name + "/charge_control_end_threshold"))
                properties[std::string(limit)].value = std::move(*percent);
        }
        all.emplace(name, std::move(properties));
    }
    return all;
}

LinuxPower::LinuxPower(const Files &files)
    : m_files(files)
{}

template <typename Container>
std::optional<Container> LinuxPower::found(Container container) const
{
    if (container.empty() && !m_files.exists(suppliesFolder))
        return std::nullopt;
    return container;
}

std::optional<std::vector<PropertyMap>> LinuxPower::powerSources() const
{
    return found(PowerSupplies(m_files).powerSources());
}

PowerSettings LinuxPower::settings() const
{
    return {.platformProfile = m_files.value("/sys/firmware/acpi/platform_profile")};
}

std::optional<std::map<std::string, PropertyMap>> LinuxPower::powerSupplies() const
{
    return found(PowerSupplies(m_files).powerSupplies());
}

} // namespace quillmark::platform
