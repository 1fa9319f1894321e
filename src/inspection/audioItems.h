// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "language/Formats.h"
#include "platform/Machine.h"

#include <QList>

namespace quillmark::inspection {

/// The rows about a Mac's audio devices.
QList<CapabilityItem> audioItems(const platform::Machine &machine, const language::Formats &formats);

} // namespace quillmark::inspection
