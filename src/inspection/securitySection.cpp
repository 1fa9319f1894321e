// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/securityRows.h"

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

bool isVirtualMachine(const platform::Machine &machine)
{
    // kern.hv_vmm_present; Linux: the flag "hypervisor" of the processor
    return DeviceProbe::sysctlFlag(machine, "kern.hv_vmm_present");
}

Verdict virtualMachineVerdict()
{
    return {Text::tr("Virtual machine"), CapabilityStatus::Info};
}

QList<CapabilityItem> virtualMachineItems(const platform::Machine &machine)
{
    if (!isVirtualMachine(machine))
        return {};
    return {fact(u"virtualMachine"_s, Text::tr("Virtual machine"), Text::tr("Yes"))};
}

namespace DeviceProbe {

CapabilitySection securitySection(const platform::Machine &machine, const language::Formats &)
{
    return {.title = Text::tr("Security"),
            .symbol = u"lock.shield"_s,
            .items = isMac(machine) ? macSecurityItems(machine) : linuxSecurityItems(machine),
            .key = u"security"_s};
}

} // namespace DeviceProbe

} // namespace quillmark::inspection
