// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/securityItems.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection securitySection(const platform::Machine &machine, const language::Formats &)
{
    // kern.hv_vmm_present; Linux: the flag "hypervisor" of the processor
    const bool isGuest = isVirtualMachine(machine);
    return sectionOf(u"security", isMac(machine) ? macSecurityItems(machine, isGuest)
                                                 : linuxSecurityItems(machine, isGuest));
}

} // namespace quillmark::inspection::DeviceProbe
