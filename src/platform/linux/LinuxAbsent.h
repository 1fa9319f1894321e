// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Capture.h"
#include "platform/Media.h"
#include "platform/Registry.h"

namespace quillmark::platform {

/// Linux keeps no list of encoders, and no permission of the kind that a Mac's user grants.
class LinuxMedia final : public Media
{
public:
    std::optional<std::vector<VideoEncoder>> videoEncoders() const override { return std::nullopt; }
    std::optional<std::vector<VideoDecoder>> videoDecoders() const override { return std::nullopt; }
    std::optional<ImageTypes> imageTypes() const override { return std::nullopt; }
    std::expected<CommandAnswer, NoAnswer> vainfo() const override
    {
        return std::unexpected(NoAnswer::NotAsked);
    }
};

class LinuxCapture final : public Capture
{
public:
    std::optional<AuthorizationStatus> authorization(CaptureKind) const override { return std::nullopt; }
    std::optional<std::vector<CameraReading>> cameras() const override { return std::nullopt; }
    std::optional<std::vector<AudioDevice>> audioDevices() const override { return std::nullopt; }
    std::optional<AudioDefaults> audioDefaults() const override { return std::nullopt; }
    std::optional<std::vector<SoundCard>> soundCards() const override { return std::nullopt; }
};

class LinuxRegistry final : public Registry
{
public:
    std::vector<PropertyMap> services(std::string_view) const override { return {}; }
    bool isReadable() const override { return false; }
};

} // namespace quillmark::platform
