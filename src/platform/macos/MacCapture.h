// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Capture.h"

namespace quillmark::platform {

/// AVFoundation and Core Audio, by what they list without a permission.
class MacCapture final : public Capture
{
public:
    std::optional<AuthorizationStatus> authorization(CaptureKind kind) const override;
    std::optional<std::vector<CameraReading>> cameras() const override;
    std::optional<std::vector<AudioDevice>> audioDevices() const override;
    std::optional<AudioDefaults> audioDefaults() const override;
    std::optional<std::vector<SoundCard>> soundCards() const override { return std::nullopt; }
};

} // namespace quillmark::platform
