// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/batteryItems.h"

#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <cmath>
#include <cstdlib>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using battery::BatteryJudgement;
using battery::BatteryReading;
using battery::ChargeState;

std::optional<Verdict> healthVerdict(const BatteryJudgement &judgement, const language::Formats &formats)
{
    if (!judgement.healthPercent)
        return std::nullopt;
    return Verdict{percentText(*judgement.healthPercent, formats), statusOf(rating(judgement.health))};
}

std::optional<Verdict> conditionVerdict(const BatteryJudgement &judgement)
{
    if (judgement.condition == battery::Condition::NotReported)
        return std::nullopt;
    return Verdict{conditionTitle(judgement), statusOf(rating(judgement.condition))};
}

std::optional<Verdict> cyclesVerdict(const BatteryReading &reading, const BatteryJudgement &judgement,
                                     const language::Formats &formats)
{
    if (!reading.cycleCount)
        return std::nullopt;
    const auto count = wholeNumber(*reading.cycleCount, formats);
    const auto rated = reading.ratedCycleCount;
    return Verdict{rated ? Text::tr("%1 of %2").arg(count, wholeNumber(*rated, formats)) : count,
                   statusOf(cycleRating(judgement))};
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
    return Text::tr("%1 of %2\u00a0mAh").arg(wholeNumber(present, formats), wholeNumber(design, formats));
}

QString chargeStateText(ChargeState state)
{
    switch (state) {
    case ChargeState::Charging:
        return Text::tr("Charging");
    case ChargeState::Full:
        //: Of a battery.
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
    //: %1 is a duration.
    return time.untilFull ? Text::tr("%1 until full").arg(*duration) : *duration;
}

} // namespace

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

QString capacityText(std::int64_t capacity, battery::CapacityUnit unit, const language::Formats &formats)
{
    return unit == battery::CapacityUnit::MilliwattHours
               ? Text::tr("%1\u00a0Wh").arg(wattHours(capacity, formats))
               : Text::tr("%1\u00a0mAh").arg(wholeNumber(capacity, formats));
}

QString temperatureText(double celsius, const language::Formats &formats)
{
    const auto magnitude = formats.number(std::abs(celsius), 1);
    return celsius < 0 ? Text::tr("−%1\u00a0°C").arg(magnitude) : Text::tr("%1\u00a0°C").arg(magnitude);
}

QList<CapabilityItem> batteryItems(const BatteryReading &reading, bool onMac,
                                   const language::Formats &formats)
{
    const auto judgement = judge(reading);
    // AppleRawMaxCapacity or what stands for it, of DesignCapacity; CHARGE_FULL, ENERGY_FULL of …_DESIGN
    QList<CapabilityItem> items = {
        judged(u"batteryHealth"_s, Text::tr("Battery health"), healthVerdict(judgement, formats))};
    // PermanentFailureStatus, BatteryHealthCondition, BatteryHealth; HEALTH
    if (onMac || judgement.condition != battery::Condition::NotReported)
        items += judged(u"batteryCondition"_s, Text::tr("Battery condition"), conditionVerdict(judgement));
    // CycleCount, else that of BatteryData; DesignCycleCount9C; CYCLE_COUNT
    items += judged(u"cycleCount"_s, Text::tr("Cycle count"), cyclesVerdict(reading, judgement, formats));
    // As for the health
    if (reading.presentCapacity && reading.designCapacity)
        items +=
            passing(fact(u"batteryCapacity"_s, Text::tr("Battery capacity"), capacityText(reading, formats)));
    // Temperature; TEMP
    if (reading.temperature)
        items += passing(judged(
            u"batteryTemperature"_s, Text::tr("Battery temperature"),
            Verdict{temperatureText(*reading.temperature, formats), statusOf(rating(judgement.warmth))}));
    // "Current Capacity" of "Max Capacity"; CAPACITY
    const auto percent = chargePercent(reading);
    items += passing(
        //: How full the battery is.
        fact(u"charge"_s, Text::tr("Charge"), percent ? percentText(*percent, formats) : notReadable()));
    // "Is Charging", "Is Charged", "Power Source State"; STATUS
    items += passing(fact(u"charging"_s, Text::tr("Charging", "heading"),
                          reading.chargeState ? chargeStateText(*reading.chargeState) : notReadable()));
    // "Time to Empty", "Time to Full Charge"; ENERGY_NOW by POWER_NOW, CHARGE_NOW by CURRENT_NOW
    if (reading.timeRemaining)
        items += passing(
            fact(u"timeRemaining"_s, Text::tr("Time remaining"), timeText(*reading.timeRemaining, formats)));
    return items;
}

} // namespace quillmark::inspection
