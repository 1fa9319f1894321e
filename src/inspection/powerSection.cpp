// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/supplyReading.h"
#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/batteryItems.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using battery::BatteryReading;
using battery::Supplies;
using platform::PowerSettings;

enum class Source { Line, Battery, Ups };

/// What the supplies of Linux tell of a machine that has no battery. Of the line a desktop says nothing.
Source sourceOf(const Supplies &supplies)
{
    const auto anySupply = [&supplies](bool (*holds)(const platform::PropertyMap &)) {
        return std::ranges::any_of(supplies, [holds](const auto &supply) { return holds(supply.second); });
    };
    return anySupply(battery::isDrainedUps) && !anySupply(battery::bringsPower) ? Source::Ups : Source::Line;
}

std::optional<Source> sourceOf(const PowerSettings &settings, bool onMac,
                               const std::optional<Supplies> &supplies,
                               const std::optional<BatteryReading> &reading)
{
    // IOPSGetProvidingPowerSourceType
    if (settings.providingSource == "AC Power")
        return Source::Line;
    if (settings.providingSource == "Battery Power")
        return Source::Battery;
    if (settings.providingSource == "UPS Power")
        return Source::Ups;
    if (onMac)
        return std::nullopt;
    // Supplies of type Mains or USB with ONLINE 1, and STATUS
    if (reading)
        return reading->onAC ? std::optional(*reading->onAC ? Source::Line : Source::Battery) : std::nullopt;
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

/// `areSourcesKnown`: the system listed its power sources at all. The list of a desktop is empty.
std::optional<Verdict> batteryVerdict(bool hasBattery, bool areSourcesKnown)
{
    // The first power source of type "InternalBattery"; the first supply of type Battery
    if (hasBattery)
        //: Of a battery: it has one.
        return Verdict{Text::tr("Built in"), CapabilityStatus::Supported};
    return areSourcesKnown ? std::optional(Verdict{Text::tr("None (desktop)")}) : std::nullopt;
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
        return Text::tr("%1\u00a0W").arg(wholeNumber(*watts, formats));
    return std::nullopt;
}

QString profileText(const std::string &word)
{
    if (word == "balanced")
        //: This and the next four are power profiles of the firmware: of the fans, noise and heat.
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
QList<CapabilityItem> settingItems(const platform::Machine &machine, bool onMac,
                                   const PowerSettings &settings,
                                   const std::optional<BatteryReading> &reading,
                                   const language::Formats &formats)
{
    constexpr std::int32_t firstSystemWithLowPowerMode = 12;
    QList<CapabilityItem> items;
    if (onMac && machine.system().operatingSystem().major >= firstSystemWithLowPowerMode) {
        // NSProcessInfo.lowPowerModeEnabled
        items += passing(
            fact(u"lowPowerMode"_s, Text::tr("Low power mode"), onOrOff(settings.lowPowerModeEnabled)));
    }
    // charge_control_end_threshold
    if (reading && reading->chargeLimit) {
        const auto limit = static_cast<int>(*reading->chargeLimit);
        items += fact(u"chargeLimit"_s, Text::tr("Charge limit"),
                      limit == 100 ? Text::tr("None", "charge limit") : percentText(limit, formats));
    }
    // /sys/firmware/acpi/platform_profile
    if (settings.platformProfile)
        items += passing(
            fact(u"powerProfile"_s, Text::tr("Power profile"), profileText(*settings.platformProfile)));
    return items;
}

} // namespace

CapabilitySection powerSection(const platform::Machine &machine, const language::Formats &formats)
{
    const bool onMac = isMac(machine);
    const auto settings = machine.power().settings();
    const auto supplies = machine.power().powerSupplies();
    const auto reading = battery::readBattery(machine, supplies, isAppleSilicon(machine));
    QList<CapabilityItem> items = {
        passing(fact(u"powerSource"_s, Text::tr("Power source"),
                     sourceText(sourceOf(settings, onMac, supplies, reading), reading.has_value()))),
        judged(u"battery"_s, Text::tr("Battery"),
               batteryVerdict(reading.has_value(),
                              supplies.has_value() || machine.power().powerSources().has_value())),
    };
    if (reading)
        items += batteryItems(*reading, onMac, formats);
    if (const auto adapter = adapterText(settings, formats))
        items += passing(fact(u"adapter"_s, Text::tr("Power adapter"), *adapter));
    items += settingItems(machine, onMac, settings, reading, formats);
    return sectionOf(u"power", std::move(items));
}

} // namespace quillmark::inspection::DeviceProbe
