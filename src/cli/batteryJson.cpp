// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/batteryJson.h"

#include "battery/BatteryJudgement.h"
#include "json/Writer.h"

namespace quillmark::cli {

namespace {

using battery::BatteryReading;

const char *word(battery::Rating rating)
{
    switch (rating) {
    case battery::Rating::Info:
        return "info";
    case battery::Rating::Supported:
        return "supported";
    case battery::Rating::Warning:
        return "warning";
    case battery::Rating::Unsupported:
        return "unsupported";
    }
    return "";
}

const char *word(battery::Health health)
{
    switch (health) {
    case battery::Health::NotReported:
        return "notReported";
    case battery::Health::Normal:
        return "normal";
    case battery::Health::Reduced:
        return "reduced";
    case battery::Health::Worn:
        return "worn";
    }
    return "";
}

const char *word(battery::Condition condition)
{
    switch (condition) {
    case battery::Condition::NotReported:
        return "notReported";
    case battery::Condition::Normal:
        return "normal";
    case battery::Condition::ServiceRecommended:
        return "serviceRecommended";
    case battery::Condition::PermanentFailure:
        return "permanentFailure";
    case battery::Condition::Other:
        return "other";
    }
    return "";
}

const char *word(battery::Warmth warmth)
{
    switch (warmth) {
    case battery::Warmth::NotReported:
        return "notReported";
    case battery::Warmth::Cold:
        return "cold";
    case battery::Warmth::Normal:
        return "normal";
    case battery::Warmth::Hot:
        return "hot";
    }
    return "";
}

const char *word(battery::Cause cause)
{
    switch (cause) {
    case battery::Cause::None:
        return "none";
    case battery::Cause::Health:
        return "health";
    case battery::Cause::Condition:
        return "condition";
    case battery::Cause::Cycles:
        return "cycles";
    case battery::Cause::Heat:
        return "heat";
    }
    return "";
}

const char *word(battery::ChargeState state)
{
    switch (state) {
    case battery::ChargeState::Charging:
        return "charging";
    case battery::ChargeState::Full:
        return "full";
    case battery::ChargeState::NotCharging:
        return "notCharging";
    case battery::ChargeState::OnBattery:
        return "onBattery";
    }
    return "";
}

/// Writes members of an object; what is absent is left out.
class Members
{
public:
    explicit Members(json::Writer &writer)
        : m_writer(writer)
    {}

    template <typename Value>
    void operator()(std::string_view name, const std::optional<Value> &value)
    {
        if (value)
            m_writer.member(name, *value);
    }
    void operator()(std::string_view name, const std::optional<std::string> &value)
    {
        if (value)
            m_writer.member(name, std::string_view(*value));
    }
    void operator()(std::string_view name, const char *value) { m_writer.member(name, value); }

private:
    json::Writer &m_writer;
};

void writeJudgement(Members &member, const battery::BatteryJudgement &judgement)
{
    member("overall", word(judgement.overall));
    member("cause", word(judgement.cause));
    member("health", word(judgement.health));
    member("healthPercent", judgement.healthPercent);
    member("condition", word(judgement.condition));
    member("hasRatedCycles", judgement.hasRatedCycles);
    member("warmth", word(judgement.warmth));
}

void writeCharge(Members &member, const BatteryReading &reading)
{
    member("level", reading.level);
    member("isCharging", reading.isCharging);
    member("onAC", reading.onAC);
    if (reading.chargeState)
        member("chargeState", word(*reading.chargeState));
    if (const auto time = reading.timeRemaining)
        member(time->untilFull ? "minutesToFull" : "minutesToEmpty", time->minutes);
    member("chargeLimitPercent", reading.chargeLimit);
}

void writeBattery(json::Writer &writer, const BatteryReading &reading)
{
    writer.beginObject();
    Members member(writer);
    member("name", reading.name);
    writeJudgement(member, battery::judge(reading));
    member("reportedMaximumPercent", reading.reportedMaximumPercent);
    const bool byEnergy = reading.unit == battery::CapacityUnit::MilliwattHours;
    if (reading.designCapacity || reading.presentCapacity)
        member("capacityUnit", byEnergy ? "mWh" : "mAh");
    member("designCapacity", reading.designCapacity);
    member("presentCapacity", reading.presentCapacity);
    member("cycleCount", reading.cycleCount);
    member("ratedCycleCount", reading.ratedCycleCount);
    member("temperatureCelsius", reading.temperature);
    member("voltageMillivolts", reading.voltage);
    member("currentMilliamperes", reading.current);
    writeCharge(member, reading);
    member("systemHealth", reading.health);
    member("systemCondition", reading.condition);
    member("failureBits", reading.failureBits);
    writer.endObject();
}

} // namespace

QByteArray batteryJson(const std::vector<BatteryReading> &batteries)
{
    json::Writer writer;
    writer.beginObject();
    writer.member("schema", "battery-v1");
    writer.member("hasBattery", !batteries.empty());
    writer.key("batteries");
    writer.beginArray();
    for (const auto &reading : batteries)
        writeBattery(writer, reading);
    writer.endArray();
    writer.endObject();
    return QByteArray::fromStdString(writer.take() + '\n');
}

} // namespace quillmark::cli
