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
    return judged(u"architecture"_s, Text::tr("Architecture"),
                  Verdict{text, isTranslated ? CapabilityStatus::Warning : CapabilityStatus::Info});
}

Verdict thermalVerdict(int state)
{
    switch (state) {
    case 0:
        return {Text::tr("Normal"), CapabilityStatus::Supported};
    case 1: // warm is no limit yet, so it warns of nothing
        return {Text::tr("Warm")};
    case 2:
        return {Text::tr("Hot"), CapabilityStatus::Warning};
    case 3:
        return {Text::tr("Critical"), CapabilityStatus::Unsupported};
    default:
        return {Text::tr("Unknown")};
    }
}

} // namespace

CapabilitySection systemSection(const platform::Machine &machine, const language::Formats &formats)
{
    const auto hostName = machine.system().hostName();
    return sectionOf(u"system",
                     {
                         fact(u"deviceName"_s, Text::tr("Device name"),
                              hostName ? QString::fromStdString(*hostName) : missing()),
                         fact(u"modelIdentifier"_s, Text::tr("Model identifier"),
                              sysctlString(machine, "hw.model").value_or(missing())),
                         fact(u"os"_s, Text::tr("Operating system"), osVersionDescription(machine)),
                         architectureItem(machine),
                         passing(fact(u"uptime"_s, Text::tr("Uptime"),
                                      formats.uptime(machine.system().uptime()).value_or(missing()))),
                         passing(judged(u"thermalState"_s, Text::tr("Thermal state"),
                                        thermalVerdict(machine.system().thermalState()))),
                     });
}

} // namespace quillmark::inspection::DeviceProbe
