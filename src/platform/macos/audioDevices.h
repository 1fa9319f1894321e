// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Capture.h"

#include <optional>
#include <vector>

namespace quillmark::platform {

/// As Capture::audioDevices() and audioDefaults(): Core Audio's list of devices, none of which is opened.
std::optional<std::vector<AudioDevice>> readAudioDevices();
std::optional<AudioDefaults> readAudioDefaults();

} // namespace quillmark::platform
