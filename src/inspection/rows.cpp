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

QString onOrOff(std::optional<bool> isOn)
{
    if (!isOn)
        return notReadable();
    return *isOn ? Text::tr("On") : Text::tr("Off");
}

QString yesOrNo(std::optional<bool> isSo)
{
    if (!isSo)
        return notReadable();
    return *isSo ? Text::tr("Yes") : Text::tr("No");
}

Verdict availability(bool isAvailable)
{
    if (isAvailable)
        return {Text::tr("Available"), CapabilityStatus::Supported};
    return {Text::tr("Not available"), CapabilityStatus::Unsupported};
}

CapabilityItem fact(const QString &key, const QString &label, const QString &value)
{
    return {.label = label, .value = value, .status = CapabilityStatus::Info, .key = key};
}

CapabilityItem judged(const QString &key, const QString &label, const std::optional<Verdict> &verdict)
{
    if (!verdict)
        return fact(key, label, notReadable());
    return {.label = label, .value = verdict->value, .status = verdict->status, .key = key};
}

CapabilityItem capability(const QString &key, const QString &label, std::optional<bool> isSupported)
{
    if (!isSupported)
        return fact(key, label, notReadable());
    return *isSupported
               ? judged(key, label, Verdict{Text::tr("Supported"), CapabilityStatus::Supported})
               : judged(key, label, Verdict{Text::tr("Not supported"), CapabilityStatus::Unsupported});
}

CapabilityItem passing(CapabilityItem item)
{
    item.isVolatile = true;
    return item;
}

QString Numbered::label(const QString &single, const QString &numbered) const
{
    return isOnly ? single : numbered.arg(language::currentFormats().count(number));
}

} // namespace quillmark::inspection
