// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Media.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// What the video drivers can do, as `vainfo` tells. Linux keeps no list of codecs and image formats.
class LinuxMedia final : public Media
{
public:
    explicit LinuxMedia(const Files &files);

    std::optional<std::vector<VideoEncoder>> videoEncoders() const override { return std::nullopt; }
    std::optional<std::vector<VideoDecoder>> videoDecoders() const override { return std::nullopt; }
    std::optional<ImageTypes> imageTypes() const override { return std::nullopt; }
    std::expected<CommandAnswer, NoAnswer> vainfo() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
