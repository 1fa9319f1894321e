// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"

namespace quillmark::platform {

/// CoreWLAN, without the names of networks, for which it would want to know where the Mac is.
WifiReading readWifi();

} // namespace quillmark::platform
