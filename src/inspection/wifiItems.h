// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "language/Formats.h"
#include "platform/Machine.h"

#include <QList>
#include <QString>

namespace quillmark::inspection {

/// A row of the connection of the moment.
inline CapabilityItem volatileItem(const QString &key, const QString &label, const QString &value,
                                   CapabilityStatus status = CapabilityStatus::Info)
{
    return {.label = label, .value = value, .status = status, .key = key, .isVolatile = true};
}

inline QString withUnit(const QString &number, const QString &unit)
{
    return number + QChar::Nbsp + unit;
}

/// Whether there is Wi-Fi, and what it is connected with.
QList<CapabilityItem> wifiItems(const platform::Machine &machine, const language::Formats &formats);

} // namespace quillmark::inspection
