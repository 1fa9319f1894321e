// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <optional>
#include <vector>

namespace quillmark::platform {

/// As Power::powerSources().
std::optional<std::vector<PropertyMap>> readPowerSources();

} // namespace quillmark::platform
