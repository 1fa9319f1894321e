// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "platform/Machine.h"

#include <QList>

namespace quillmark::inspection {

/// The rows about the protections of a Mac, and of a machine with Linux. `isGuest`: it is a virtual machine,
/// which is not expected to have some of the hardware.
QList<CapabilityItem> macSecurityItems(const platform::Machine &machine, bool isGuest);
QList<CapabilityItem> linuxSecurityItems(const platform::Machine &machine, bool isGuest);

} // namespace quillmark::inspection
