// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "language/Formats.h"
#include "platform/Network.h"

#include <QList>

#include <optional>

namespace quillmark::inspection {

/// Whether there is Wi-Fi, and what it is connected with.
QList<CapabilityItem> wifiItems(const std::optional<platform::WifiReading> &wifi,
                                const language::Formats &formats);

} // namespace quillmark::inspection
