// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/BatteryFacts.h"

#include "battery/batteryTexts.h"
#include "inspection/batteryItems.h"
#include "inspection/values.h"
#include "language/texts.h"

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using battery::BatteryJudgement;
using battery::BatteryReading;
using battery::ChargeState;
using inspection::CapabilityStatus;
using inspection::statusOf;

namespace {

constexpr double hottestOnScale = 50;

class Text
{
    QUILLMARK_TEXTS(BatteryFacts)
};

BatteryFigure notReported()
{
    return {.figure = u"–"_s, .note = title(battery::Health::NotReported), .isReported = false};
}

QString chargeNote(const BatteryReading &reading, const language::Formats &formats)
{
    const auto &remaining = reading.timeRemaining;
    const auto time = remaining && remaining->minutes
                          ? formats.uptime(static_cast<double>(*remaining->minutes) * 60)
                          : std::nullopt;
    switch (reading.chargeState.value_or(ChargeState::NotCharging)) {
    case ChargeState::Charging:
        return time && remaining->untilFull ? Text::tr("Charging, full in %1").arg(*time)
                                            : Text::tr("Charging");
    case ChargeState::Full:
        return Text::tr("Full");
    case ChargeState::OnBattery:
        return time && !remaining->untilFull ? Text::tr("On battery, %1 left").arg(*time)
                                             : Text::tr("On battery");
    case ChargeState::NotCharging:
        return reading.chargeState ? Text::tr("Connected, not charging") : QString();
    }
    return {};
}

BatteryFigure chargeOf(const BatteryReading &reading, const language::Formats &formats)
{
    const auto percent = chargePercent(reading);
    if (!percent)
        return notReported();
    return {.figure = inspection::percentText(*percent, formats),
            .note = chargeNote(reading, formats),
            .share = *percent / 100.0,
            .status = CapabilityStatus::Supported};
}

BatteryFigure cyclesOf(const BatteryReading &reading, const BatteryJudgement &judgement,
                       const language::Formats &formats)
{
    if (!reading.cycleCount)
        return notReported();
    BatteryFigure figure{.figure = inspection::wholeNumber(*reading.cycleCount, formats)};
    if (const auto rated = reading.ratedCycleCount) {
        figure.note = Text::tr("Rated for %1 cycles").arg(inspection::wholeNumber(*rated, formats));
        figure.share = static_cast<double>(*reading.cycleCount) / static_cast<double>(*rated);
    }
    // How many there have been is a plain fact, until there have been too many.
    if (judgement.hasRatedCycles == true)
        figure.status = CapabilityStatus::Warning;
    return figure;
}

BatteryFigure temperatureOf(const BatteryReading &reading, const BatteryJudgement &judgement,
                            const language::Formats &formats)
{
    if (!reading.temperature)
        return notReported();
    const auto normal = Text::tr("Normal: 10 to 45\u00a0°C");
    BatteryFigure figure{.figure = inspection::temperatureText(*reading.temperature, formats),
                         .note = normal,
                         .share = std::clamp(*reading.temperature / hottestOnScale, 0.0, 1.0),
                         .status = statusOf(rating(judgement.warmth))};
    if (judgement.warmth == battery::Warmth::Normal)
        figure.status = CapabilityStatus::Supported;
    else
        //: %1: "Hot" or "Cold", %2: what would be normal
        figure.note = Text::tr("%1 · %2").arg(title(judgement.warmth), normal);
    return figure;
}

BatteryFigure conditionOf(const BatteryJudgement &judgement)
{
    if (judgement.condition == battery::Condition::NotReported)
        return notReported();
    return {.figure = conditionTitle(judgement),
            .note = Text::tr("Reported by the system"),
            .status = statusOf(rating(judgement.condition))};
}

/// Spoken words, since a sign may be passed over.
QString ringDescription(const BatteryJudgement &judgement)
{
    if (!judgement.healthPercent)
        return Text::tr("Battery health not reported");
    //: For screen readers: "Battery health 92 percent, Normal"
    return Text::tr("Battery health %1 percent, %2")
        .arg(QString::number(*judgement.healthPercent), title(judgement.health));
}

} // namespace

BatteryFacts batteryFacts(const BatteryReading &reading, const language::Formats &formats)
{
    const auto judgement = judge(reading);
    BatteryFacts facts;
    facts.name = QString::fromStdString(reading.name.value_or(std::string()));
    facts.status = statusOf(judgement.overall);
    facts.percent = judgement.healthPercent;
    facts.description = ringDescription(judgement);
    facts.headline = headline(judgement);
    // Where something else than its health is wrong, that is the word.
    const auto cause = causeText(judgement);
    if (!cause.isEmpty())
        facts.word = cause;
    else if (judgement.healthPercent)
        facts.word = title(judgement.health);
    facts.sentence = detail(judgement);
    if (reading.presentCapacity)
        facts.presentCapacity = inspection::capacityText(*reading.presentCapacity, reading.unit, formats);
    if (reading.designCapacity)
        facts.designCapacity = inspection::capacityText(*reading.designCapacity, reading.unit, formats);
    if (judgement.healthPercent)
        facts.presentShare = std::min(static_cast<double>(*reading.presentCapacity) /
                                          static_cast<double>(*reading.designCapacity),
                                      1.0);
    if (reading.reportedMaximumPercent)
        facts.reported =
            battery::reportedBySystem(inspection::percentText(*reading.reportedMaximumPercent, formats));
    facts.charge = chargeOf(reading, formats);
    facts.cycles = cyclesOf(reading, judgement, formats);
    facts.temperature = temperatureOf(reading, judgement, formats);
    facts.condition = conditionOf(judgement);
    return facts;
}

} // namespace quillmark::app
