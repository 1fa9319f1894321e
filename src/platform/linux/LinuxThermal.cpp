// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxThermal.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillmark::platform {

namespace {

constexpr const char *zonesFolder = "/sys/class/thermal/";

/// What no sensor of a running computer measures: a broken or absent one.
constexpr std::int64_t lowestCredible = -40'000;
constexpr std::int64_t highestCredible = 150'000;

std::int32_t stateFrom(const std::string &type)
{
    if (type == "critical" || type == "hot")
        return 3;
    if (type == "passive")
        return 2;
    return type == "active" ? 1 : 0;
}

} // namespace

ThermalZones::ThermalZones(const Files &files)
    : m_files(files)
    , m_folder(files, zonesFolder, "thermal_zone")
{}

void ThermalZones::findZones()
{
    m_zones.clear();
    for (const std::string &name : m_folder.names()) {
        const std::string folder = zonesFolder + name;
        if (auto limits = limitsOf(folder); !limits.empty())
            m_zones.push_back(
                {folder, std::move(limits), HeldFile(m_files, folder + "/temp", HeldFile::figures)});
    }
}

std::vector<ThermalZones::Limit> ThermalZones::limitsOf(const std::string &folder) const
{
    std::vector<Limit> limits;
    for (int number = 0;; ++number) {
        const std::string trip = folder + "/trip_point_" + std::to_string(number);
        const auto type = m_files.value(trip + "_type");
        if (!type)
            return limits;
        const std::int32_t state = stateFrom(*type);
        const std::int64_t temperature = state > 0 ? m_files.number(trip + "_temp").value_or(0) : 0;
        // Firmware that does not use a limit leaves it at zero or below.
        if (temperature > 0)
            limits.push_back({temperature, state});
    }
}

std::int32_t ThermalZones::state()
{
    if (m_folder.hasChanged())
        findZones();
    std::int32_t worst = 0;
    for (Zone &zone : m_zones) {
        const auto text = zone.temperature.read();
        const auto temperature = text ? parseNumber<std::int64_t>(trimmed(*text)) : std::nullopt;
        if (!temperature || *temperature < lowestCredible || *temperature > highestCredible)
            continue;
        std::int32_t reached = 0;
        for (const Limit &limit : zone.limits) {
            if (*temperature >= limit.temperature)
                reached = std::max(reached, limit.state);
        }
        // A zone that is switched off keeps its limits and its last temperature.
        if (reached > worst && m_files.value(zone.folder + "/mode") != "disabled")
            worst = reached;
    }
    return worst;
}

} // namespace quillmark::platform
