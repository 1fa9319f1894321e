// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/batteryItems.h"

#include "battery/BatteryJudgement.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

#include <cmath>
#include <cstdlib>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using battery::BatteryJudgement;
using battery::BatteryReading;
using battery::ChargeState;

CapabilityStatus statusOf(battery::Rating rating)
{
    switch (rating) {
    case battery::Rating::Info:
        return CapabilityStatus::Info;
    case battery::Rating::Supported:
        return CapabilityStatus::Supported;
    case battery::Rating::Warning:
        return CapabilityStatus::Warning;
    case battery::Rating::Unsupported:
        return CapabilityStatus::Unsupported;
    }
    return CapabilityStatus::Info;
}

QString whole(std::int64_t number, const language::Formats &formats)
{
    return formats.number(static_cast<double>(number));
}

CapabilityItem healthItem(const BatteryJudgement &judgement, const language::Formats &formats)
{
    return {.label = Text::tr("Battery health"),
            .value = judgement.healthPercent ? percentText(*judgement.healthPercent, formats) : notReadable(),
            .status = statusOf(rating(judgement.health)),
            .key = u"batteryHealth"_s};
}

CapabilityItem conditionItem(const BatteryJudgement &judgement)
{
    const bool isKnown = judgement.condition != battery::Condition::NotReported;
    return {.label = Text::tr("Battery condition"),
            .value = isKnown ? conditionTitle(judgement) : notReadable(),
            .status = statusOf(rating(judgement.condition)),
            .key = u"batteryCondition"_s};
}

CapabilityItem cyclesItem(const BatteryReading &reading, const BatteryJudgement &judgement,
                          const language::Formats &formats)
{
    CapabilityItem item{.label = Text::tr("Cycle count"),
                        .value = notReadable(),
                        .status = statusOf(cycleRating(judgement)),
                        .key = u"cycleCount"_s};
    if (reading.cycleCount)
        item.value = whole(*reading.cycleCount, formats);
    if (reading.cycleCount && reading.ratedCycleCount)
        item.value = Text::tr("%1 of %2").arg(item.value, whole(*reading.ratedCycleCount, formats));
    return item;
}

/// "52.1", "57"
QString wattHours(std::int64_t milliwattHours, const language::Formats &formats)
{
    const double tenths = std::round(static_cast<double>(milliwattHours) / 100);
    return formats.number(tenths / 10, std::fmod(tenths, 10) == 0 ? 0 : 1);
}

QString capacityText(const BatteryReading &reading, const language::Formats &formats)
{
    const auto present = *reading.presentCapacity;
    const auto design = *reading.designCapacity;
    if (reading.unit == battery::CapacityUnit::MilliwattHours)
        return Text::tr("%1 of %2\u00a0Wh").arg(wattHours(present, formats), wattHours(design, formats));
    return Text::tr("%1 of %2\u00a0mAh").arg(whole(present, formats), whole(design, formats));
}

QString temperatureText(double celsius, const language::Formats &formats)
{
    const auto magnitude = formats.number(std::abs(celsius), 1);
    return celsius < 0 ? Text::tr("−%1\u00a0°C").arg(magnitude) : Text::tr("%1\u00a0°C").arg(magnitude);
}

QString chargeStateText(ChargeState state)
{
    switch (state) {
    case ChargeState::Charging:
        return Text::tr("Charging");
    case ChargeState::Full:
        return Text::tr("Full");
    case ChargeState::NotCharging:
        return Text::tr("Connected, not charging");
    case ChargeState::OnBattery:
        return Text::tr("On battery");
    }
    return notReadable();
}

QString timeText(const battery::TimeRemaining &time, const language::Formats &formats)
{
    const auto duration =
        time.minutes ? formats.uptime(static_cast<double>(*time.minutes) * 60) : std::nullopt;
    if (!duration)
        return Text::tr("Being estimated");
    return time.untilFull ? Text::tr("%1 until full").arg(*duration) : *duration;
}

} // namespace

CapabilityItem passingFact(const QString &key, const QString &label, const QString &value)
{
    return {.label = label, .value = value, .key = key, .isVolatile = true};
}

QString percentText(int percent, const language::Formats &formats)
{
    return Text::tr("%1\u00a0%").arg(formats.number(percent));
}

QList<CapabilityItem> batteryItems(const BatteryReading &reading, bool onMac,
                                   const language::Formats &formats)
{
    const auto judgement = judge(reading);
    // AppleRawMaxCapacity or what stands for it, of DesignCapacity; CHARGE_FULL, ENERGY_FULL of …_DESIGN
    QList<CapabilityItem> items = {healthItem(judgement, formats)};
    // PermanentFailureStatus, BatteryHealthCondition, BatteryHealth; HEALTH
    if (onMac || judgement.condition != battery::Condition::NotReported)
        items += conditionItem(judgement);
    // CycleCount, else that of BatteryData; DesignCycleCount9C; CYCLE_COUNT
    items += cyclesItem(reading, judgement, formats);
    // As for the health
    if (reading.presentCapacity && reading.designCapacity)
        items +=
            passingFact(u"batteryCapacity"_s, Text::tr("Battery capacity"), capacityText(reading, formats));
    // Temperature; TEMP
    if (reading.temperature) {
        items += passingFact(u"batteryTemperature"_s, Text::tr("Battery temperature"),
                             temperatureText(*reading.temperature, formats));
        items.last().status = statusOf(rating(judgement.warmth));
    }
    // "Current Capacity" of "Max Capacity"; CAPACITY
    const auto percent = chargePercent(reading);
    items += passingFact(u"charge"_s, Text::tr("Charge"),
                         percent ? percentText(*percent, formats) : notReadable());
    // "Is Charging", "Is Charged", "Power Source State"; STATUS
    items += passingFact(u"charging"_s, Text::tr("Charging"),
                         reading.chargeState ? chargeStateText(*reading.chargeState) : notReadable());
    // "Time to Empty", "Time to Full Charge"; ENERGY_NOW by POWER_NOW, CHARGE_NOW by CURRENT_NOW
    if (reading.timeRemaining)
        items += passingFact(u"timeRemaining"_s, Text::tr("Time remaining"),
                             timeText(*reading.timeRemaining, formats));
    return items;
}

} // namespace quillmark::inspection
