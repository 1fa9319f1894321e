// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/supplyReading.h"
#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/batteryItems.h"
#include "inspection/rows.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using battery::BatteryReading;
using platform::PowerSettings;

enum class Source { Line, Battery, Ups };

/// Linux: what the supplies tell of a machine that has no battery. Of the line a desktop says nothing.
Source sourceOf(const battery::Supplies &supplies)
{
    const auto anySupply = [&supplies](bool (*holds)(const platform::PropertyMap &)) {
        return std::ranges::any_of(supplies, [holds](const auto &supply) { return holds(supply.second); });
    };
    return anySupply(battery::isDrainedUps) && !anySupply(battery::bringsPower) ? Source::Ups : Source::Line;
}

std::optional<Source> sourceOf(const platform::Machine &machine, const PowerSettings &settings,
                               const std::optional<BatteryReading> &reading)
{
    // IOPSGetProvidingPowerSourceType
    if (settings.providingSource == "AC Power")
        return Source::Line;
    if (settings.providingSource == "Battery Power")
        return Source::Battery;
    if (settings.providingSource == "UPS Power")
        return Source::Ups;
    if (isMac(machine))
        return std::nullopt;
    // Supplies of type Mains or USB with ONLINE 1, and STATUS
    if (reading)
        return reading->onAC ? std::optional(*reading->onAC ? Source::Line : Source::Battery) : std::nullopt;
    const auto supplies = machine.power().powerSupplies();
    return supplies ? std::optional(sourceOf(*supplies)) : std::nullopt;
}

QString sourceText(std::optional<Source> source, bool hasBattery)
{
    if (!source)
        return notReadable();
    switch (*source) {
    case Source::Line:
        return hasBattery ? Text::tr("Power adapter") : Text::tr("Mains power");
    case Source::Battery:
        return Text::tr("Battery");
    case Source::Ups:
        return Text::tr("UPS");
    }
    return notReadable();
}

/// Whether the system listed its power sources at all. An empty list of a Mac's is one of a desktop.
bool areSourcesKnown(const platform::Machine &machine)
{
    return isMac(machine) || machine.power().powerSupplies() || !machine.power().powerSources().empty();
}

CapabilityItem batteryItem(const platform::Machine &machine, bool hasBattery)
{
    const auto label = Text::tr("Battery");
    // The first power source of type "InternalBattery"; the first supply of type Battery
    if (hasBattery)
        return {.label = label,
                .value = Text::tr("Built in"),
                .status = CapabilityStatus::Supported,
                .key = u"battery"_s};
    return fact(u"battery"_s, label, areSourcesKnown(machine) ? Text::tr("None (desktop)") : notReadable());
}

/// None where the system describes no adapter: on battery, only a family code is left of the description.
std::optional<QString> adapterText(const PowerSettings &settings, const language::Formats &formats)
{
    if (!settings.externalAdapter)
        return std::nullopt;
    // "Name" and "Watts" of IOPSCopyExternalPowerAdapterDetails
    const auto name = platform::get<std::string>(*settings.externalAdapter, "Name");
    if (name && !name->empty())
        return QString::fromStdString(*name);
    const auto watts = platform::get<std::int64_t>(*settings.externalAdapter, "Watts");
    if (watts && *watts > 0)
        return Text::tr("%1\u00a0W").arg(formats.number(static_cast<double>(*watts)));
    return std::nullopt;
}

QString profileText(const std::string &word)
{
    if (word == "balanced")
        return Text::tr("Balanced");
    if (word == "performance")
        return Text::tr("Performance");
    if (word == "low-power")
        return Text::tr("Low power");
    if (word == "quiet")
        return Text::tr("Quiet");
    return word == "cool" ? Text::tr("Cool") : QString::fromStdString(word);
}

/// How the machine is set to use its power.
QList<CapabilityItem> settingItems(const platform::Machine &machine, const PowerSettings &settings,
                                   const std::optional<BatteryReading> &reading,
                                   const language::Formats &formats)
{
    constexpr std::int32_t firstSystemWithLowPowerMode = 12;
    QList<CapabilityItem> items;
    if (isMac(machine) && machine.system().operatingSystem().major >= firstSystemWithLowPowerMode) {
        // NSProcessInfo.lowPowerModeEnabled
        const auto isOn = settings.lowPowerModeEnabled;
        items += passingFact(u"lowPowerMode"_s, Text::tr("Low power mode"),
                             !isOn ? notReadable() : (*isOn ? Text::tr("On") : Text::tr("Off")));
    }
    // charge_control_end_threshold
    if (reading && reading->chargeLimit) {
        const auto limit = static_cast<int>(*reading->chargeLimit);
        items += fact(u"chargeLimit"_s, Text::tr("Charge limit"),
                      limit == 100 ? Text::tr("None") : percentText(limit, formats));
    }
    // /sys/firmware/acpi/platform_profile
    if (settings.platformProfile)
        items +=
            passingFact(u"powerProfile"_s, Text::tr("Power profile"), profileText(*settings.platformProfile));
    return items;
}

} // namespace

CapabilitySection powerSection(const platform::Machine &machine, const language::Formats &formats)
{
    const auto settings = machine.power().settings();
    const auto reading = batteryReading(machine);
    QList<CapabilityItem> items = {
        passingFact(u"powerSource"_s, Text::tr("Power source"),
                    sourceText(sourceOf(machine, settings, reading), reading.has_value())),
        batteryItem(machine, reading.has_value()),
    };
    if (reading)
        items += batteryItems(*reading, isMac(machine), formats);
    if (const auto adapter = adapterText(settings, formats))
        items += passingFact(u"adapter"_s, Text::tr("Power adapter"), *adapter);
    items += settingItems(machine, settings, reading, formats);
    return {.title = Text::tr("Power"), .symbol = u"bolt"_s, .items = std::move(items), .key = u"power"_s};
}

} // namespace quillmark::inspection::DeviceProbe
