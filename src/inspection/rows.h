// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QString>

#include <optional>

// What the sections make their rows of.

namespace quillmark::inspection {

/// More of one kind are not shown.
inline constexpr int mostOfAKind = 16;

/// Stands for a fact that the system does not give.
QString missing();

/// Stands for a fact that the system has but did not tell.
QString notReadable();

/// "Not readable" when absent.
QString onOrOff(std::optional<bool> isOn);
QString yesOrNo(std::optional<bool> isSo);

/// What a row says, and how that is to be taken.
struct Verdict
{
    QString value;
    CapabilityStatus status = CapabilityStatus::Info;
};

/// "Available" or "Not available".
Verdict availability(bool isAvailable);

/// A plain fact.
CapabilityItem fact(const QString &key, const QString &label, const QString &value);

/// A row of what was judged; "Not readable" without a verdict.
CapabilityItem judged(const QString &key, const QString &label, const std::optional<Verdict> &verdict);

/// A capability that is "Supported" or "Not supported"; "Not readable" when absent.
CapabilityItem capability(const QString &key, const QString &label, std::optional<bool> isSupported);

/// The row of a value that changes without any change of the machine.
CapabilityItem passing(CapabilityItem item);

/// The section of this key with its title and symbol, holding these rows. There must be one.
CapabilitySection sectionOf(QStringView key, QList<CapabilityItem> items);

/// One of several like things. Its number stands in the keys of its rows and, unless it is the only one, in
/// their labels.
struct Numbered
{
    qsizetype number = 1;
    bool isOnly = true;

    /// "Camera", or "Camera %1" with the number.
    QString label(const QString &single, const QString &numbered) const;
};

} // namespace quillmark::inspection
