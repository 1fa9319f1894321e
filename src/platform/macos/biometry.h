// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Security.h"

namespace quillmark::platform {

/// LAContext's answer about biometrics, which asks nobody for a finger.
Biometry readBiometry();

} // namespace quillmark::platform
