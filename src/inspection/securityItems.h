// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "inspection/rows.h"
#include "platform/Machine.h"

#include <QList>
#include <QString>

#include <optional>

namespace quillmark::inspection {

/// What a protection's own words come to.
struct Verdict
{
    QString text;
    CapabilityStatus status = CapabilityStatus::Info;
};

/// A row of what could not be judged when there is no verdict.
inline CapabilityItem verdictItem(const QString &key, const QString &label,
                                  const std::optional<Verdict> &verdict)
{
    return {.label = label,
            .value = verdict ? verdict->text : notReadable(),
            .status = verdict ? verdict->status : CapabilityStatus::Info,
            .key = key};
}

bool isVirtualMachine(const platform::Machine &machine);
/// In place of a verdict on hardware that a virtual machine is not expected to have.
Verdict virtualMachineVerdict();
/// A row that only a virtual machine has.
QList<CapabilityItem> virtualMachineItems(const platform::Machine &machine);

QList<CapabilityItem> macSecurityItems(const platform::Machine &machine);
QList<CapabilityItem> linuxSecurityItems(const platform::Machine &machine);

} // namespace quillmark::inspection
