// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

CapabilityItem architectureItem(const platform::Machine &machine)
{
    QString text = isAppleSilicon(machine) ? u"Apple Silicon (arm64)"_s : u"Intel (x86_64)"_s;
    if (const auto word = machine.system().words().architecture)
        text = QString::fromStdString(*word);
    const bool isTranslated = sysctlFlag(machine, "sysctl.proc_translated");
    if (isTranslated)
        text += u" — "_s + Text::tr("via Rosetta");
    return {.label = Text::tr("Architecture"),
            .value = text,
            .status = isTranslated ? CapabilityStatus::Warning : CapabilityStatus::Info,
            .key = u"architecture"_s};
}

CapabilityItem thermalStateItem(const platform::Machine &machine)
{
    CapabilityItem item{.label = Text::tr("Thermal state"), .key = u"thermalState"_s, .isVolatile = true};
    switch (machine.system().thermalState()) {
    case 0:
        item.value = Text::tr("Normal");
        item.status = CapabilityStatus::Supported;
        break;
    case 1: // warm is no limit yet, so it warns of nothing
        item.value = Text::tr("Warm");
        item.status = CapabilityStatus::Info;
        break;
    case 2:
        item.value = Text::tr("Hot");
        item.status = CapabilityStatus::Warning;
        break;
    case 3:
        item.value = Text::tr("Critical");
        item.status = CapabilityStatus::Unsupported;
        break;
    default:
        item.value = Text::tr("Unknown");
        item.status = CapabilityStatus::Info;
    }
    return item;
}

} // namespace

CapabilitySection systemSection(const platform::Machine &machine, const language::Formats &formats)
{
    const auto hostName = machine.system().hostName();
    return {
        .title = Text::tr("System"),
        .symbol = u"info.circle"_s,
        .items =
            {
                fact(u"deviceName"_s, Text::tr("Device name"),
                     hostName ? QString::fromStdString(*hostName) : missing()),
                fact(u"modelIdentifier"_s, Text::tr("Model identifier"),
                     sysctlString(machine, "hw.model").value_or(missing())),
                fact(u"os"_s, Text::tr("Operating system"), osVersionDescription(machine)),
                architectureItem(machine),
                {.label = Text::tr("Uptime"),
                 .value = formats.uptime(machine.system().uptime()).value_or(missing()),
                 .key = u"uptime"_s,
                 .isVolatile = true},
                thermalStateItem(machine),
            },
        .key = u"system"_s,
    };
}

} // namespace quillmark::inspection::DeviceProbe
