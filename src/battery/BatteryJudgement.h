// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"

#include <QString>

#include <optional>

namespace quillmark::battery {

/// From what counts least to what counts most.
enum class Rating { Info, Supported, Warning, Unsupported };

/// How much the battery holds of what it held when new.
enum class Health { NotReported, Normal, Reduced, Worn };

enum class Condition {
    NotReported,
    Normal,
    ServiceRecommended,
    PermanentFailure,
    Other, ///< a word of the system's that is not known here
};

enum class Warmth { NotReported, Cold, Normal, Hot };

/// Why a battery is not in order, what matters most first.
enum class Cause { None, Health, Condition, Cycles, Heat };

/// What a battery's figures mean, the same wherever they are shown.
struct BatteryJudgement
{
    std::optional<int> healthPercent; ///< of the design capacity, from 0 to 100; Health goes by it
    Health health = Health::NotReported;
    Condition condition = Condition::NotReported;
    QString conditionWord;              ///< of Condition::Other, as the system wrote it
    std::optional<bool> hasRatedCycles; ///< the cycles that it was made for are reached; absent: not known
    Warmth warmth = Warmth::NotReported;
    Rating overall = Rating::Info;
    Cause cause = Cause::None; ///< why `overall` is a warning or worse

    bool operator==(const BatteryJudgement &) const = default;
};

BatteryJudgement judge(const BatteryReading &reading);

Rating rating(Health health);
Rating rating(Condition condition);
Rating rating(Warmth warmth);
Rating cycleRating(const BatteryJudgement &judgement);

// Words in the interface language.

/// "Normal", "Reduced", "Worn", "Not reported".
QString title(Health health);
/// "Cold", "Normal", "Hot", "Not reported".
QString title(Warmth warmth);
/// "Normal", "Service recommended", …, or the system's own word.
QString conditionTitle(const BatteryJudgement &judgement);
/// What the whole comes to, in a sentence.
QString headline(const BatteryJudgement &judgement);
/// What that means for who uses it, in a sentence; empty where the headline has all there is to say.
QString detail(const BatteryJudgement &judgement);
/// What the headline needs beside it where it only says that something is wrong; else empty.
QString causeText(const BatteryJudgement &judgement);

} // namespace quillmark::battery
