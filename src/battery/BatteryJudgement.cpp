// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "battery/BatteryJudgement.h"

#include "battery/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace quillmark::battery {

namespace {

std::optional<int> healthPercentOf(const BatteryReading &reading)
{
    constexpr double mostOfAWorkingGauge = 120;
    const auto design = static_cast<double>(reading.designCapacity.value_or(0));
    const auto present = static_cast<double>(reading.presentCapacity.value_or(0));
    if (design <= 0 || present <= 0 || present * 100 > design * mostOfAWorkingGauge)
        return std::nullopt;
    return std::min(static_cast<int>(std::lround(present * 100 / design)), 100);
}

Health healthOf(std::optional<int> percent)
{
    constexpr int normal = 80;
    constexpr int reduced = 60;
    if (!percent)
        return Health::NotReported;
    if (*percent >= normal)
        return Health::Normal;
    return *percent >= reduced ? Health::Reduced : Health::Worn;
}

bool asksForService(const std::optional<std::string> &word)
{
    constexpr std::array<std::string_view, 8> words = {
        "Check Battery", "Fair",         "Poor",                                                  // macOS
        "Dead",          "Over voltage", "Overvoltage", "Unspecified failure", "Cell imbalance"}; // Linux
    return word && std::ranges::find(words, *word) != words.end();
}

Condition conditionOf(const BatteryReading &reading)
{
    if (reading.failureBits.value_or(0) != 0 || reading.condition == "Permanent Battery Failure")
        return Condition::PermanentFailure;
    if (asksForService(reading.health) || asksForService(reading.condition))
        return Condition::ServiceRecommended;
    if (reading.health.has_value() ? reading.health == "Good" : reading.condition == "Good")
        return Condition::Normal;
    return reading.health || reading.condition ? Condition::Other : Condition::NotReported;
}

std::optional<bool> hasRatedCycles(const BatteryReading &reading)
{
    if (!reading.cycleCount || !reading.ratedCycleCount)
        return std::nullopt;
    return *reading.cycleCount >= *reading.ratedCycleCount;
}

/// The room may have 35 °C; the cells of a battery that charges pass that every day.
Warmth warmthOf(std::optional<double> temperature)
{
    constexpr double coldest = 10;
    constexpr double hottest = 45;
    if (!temperature)
        return Warmth::NotReported;
    if (*temperature < coldest)
        return Warmth::Cold;
    return *temperature > hottest ? Warmth::Hot : Warmth::Normal;
}

Cause causeOf(const BatteryJudgement &judgement)
{
    if (rating(judgement.health) >= Rating::Warning)
        return Cause::Health;
    if (rating(judgement.condition) >= Rating::Warning)
        return Cause::Condition;
    if (judgement.hasRatedCycles == true)
        return Cause::Cycles;
    return judgement.warmth == Warmth::Hot ? Cause::Heat : Cause::None;
}

} // namespace

BatteryJudgement judge(const BatteryReading &reading)
{
    BatteryJudgement judgement;
    judgement.healthPercent = healthPercentOf(reading);
    judgement.health = healthOf(judgement.healthPercent);
    judgement.condition = conditionOf(reading);
    if (judgement.condition == Condition::Other)
        judgement.conditionWord =
            QString::fromStdString(reading.health ? *reading.health : *reading.condition);
    judgement.hasRatedCycles = hasRatedCycles(reading);
    judgement.warmth = warmthOf(reading.temperature);
    judgement.overall = std::max({rating(judgement.health), rating(judgement.condition),
                                  judgement.hasRatedCycles == true ? Rating::Warning : Rating::Info,
                                  rating(judgement.warmth)});
    judgement.cause = causeOf(judgement);
    return judgement;
}

Rating rating(Health health)
{
    switch (health) {
    case Health::NotReported:
        return Rating::Info;
    case Health::Normal:
        return Rating::Supported;
    case Health::Reduced:
        return Rating::Warning;
    case Health::Worn:
        return Rating::Unsupported;
    }
    return Rating::Info;
}

Rating rating(Condition condition)
{
    switch (condition) {
    case Condition::NotReported:
    case Condition::Other:
        return Rating::Info;
    case Condition::Normal:
        return Rating::Supported;
    case Condition::ServiceRecommended:
    case Condition::PermanentFailure:
        return Rating::Warning;
    }
    return Rating::Info;
}

Rating rating(Warmth warmth)
{
    return warmth == Warmth::Hot ? Rating::Warning : Rating::Info;
}

Rating cycleRating(const BatteryJudgement &judgement)
{
    if (!judgement.hasRatedCycles)
        return Rating::Info;
    return *judgement.hasRatedCycles ? Rating::Warning : Rating::Supported;
}

QString title(Health health)
{
    switch (health) {
    case Health::NotReported:
        return Text::tr("Not reported");
    case Health::Normal:
        return Text::tr("Normal");
    case Health::Reduced:
        return Text::tr("Reduced");
    case Health::Worn:
        return Text::tr("Worn");
    }
    return {};
}

QString title(Warmth warmth)
{
    switch (warmth) {
    case Warmth::NotReported:
        return Text::tr("Not reported");
    case Warmth::Cold:
        return Text::tr("Cold");
    case Warmth::Normal:
        return Text::tr("Normal");
    case Warmth::Hot:
        return Text::tr("Hot");
    }
    return {};
}

QString conditionTitle(const BatteryJudgement &judgement)
{
    switch (judgement.condition) {
    case Condition::NotReported:
        return Text::tr("Not reported");
    case Condition::Normal:
        return Text::tr("Normal");
    case Condition::ServiceRecommended:
        return Text::tr("Service recommended");
    case Condition::PermanentFailure:
        return Text::tr("Permanent failure");
    case Condition::Other:
        return judgement.conditionWord;
    }
    return {};
}

QString headline(const BatteryJudgement &judgement)
{
    if (judgement.cause != Cause::None && judgement.cause != Cause::Health)
        return Text::tr("This battery needs attention.");
    switch (judgement.health) {
    case Health::NotReported:
        return Text::tr("This battery does not tell how much it holds.");
    case Health::Normal:
        return Text::tr("This battery is in good condition.");
    case Health::Reduced:
        return Text::tr("This battery holds less than it used to.");
    case Health::Worn:
        return Text::tr("This battery is worn.");
    }
    return {};
}

QString detail(const BatteryJudgement &judgement)
{
    if (judgement.cause != Cause::None && judgement.cause != Cause::Health)
        return {};
    switch (judgement.health) {
    case Health::NotReported:
        return {};
    case Health::Normal:
        return Text::tr("It holds almost as much charge as when it was new.");
    case Health::Reduced:
        return Text::tr("It still works well, but it lasts noticeably shorter.");
    case Health::Worn:
        return Text::tr("Consider having it replaced.");
    }
    return {};
}

QString causeText(const BatteryJudgement &judgement)
{
    switch (judgement.cause) {
    case Cause::None:
    case Cause::Health:
        return {};
    case Cause::Condition:
        return conditionTitle(judgement);
    case Cause::Cycles:
        return Text::tr("It has reached its rated cycles.");
    case Cause::Heat:
        return Text::tr("It is hot.");
    }
    return {};
}

} // namespace quillmark::battery
