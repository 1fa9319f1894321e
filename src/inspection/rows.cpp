// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/rows.h"

#include "inspection/Text.h"

namespace quillmark::inspection {

QString missing()
{
    return QStringLiteral("—");
}

QString notReadable()
{
    return Text::tr("Not readable");
}

CapabilityItem fact(const QString &key, const QString &label, const QString &value)
{
    return {.label = label, .value = value, .status = CapabilityStatus::Info, .key = key};
}

CapabilityItem capability(const QString &key, const QString &label, bool isSupported)
{
    return {.label = label,
            .value = isSupported ? Text::tr("Supported") : Text::tr("Not supported"),
            .status = isSupported ? CapabilityStatus::Supported : CapabilityStatus::Unsupported,
            .key = key};
}

} // namespace quillmark::inspection
