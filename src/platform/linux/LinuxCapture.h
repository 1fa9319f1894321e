// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Capture.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// Cameras on USB and the sound cards of ALSA, by name; no device is opened. Linux knows no permission of the
/// kind that a Mac's user grants.
class LinuxCapture final : public Capture
{
public:
    explicit LinuxCapture(const Files &files);

    std::optional<AuthorizationStatus> authorization(CaptureKind) const override { return std::nullopt; }
    std::optional<std::vector<CameraReading>> cameras() const override;
    std::optional<std::vector<AudioDevice>> audioDevices() const override { return std::nullopt; }
    std::optional<AudioDefaults> audioDefaults() const override { return std::nullopt; }
    std::optional<std::vector<SoundCard>> soundCards() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
