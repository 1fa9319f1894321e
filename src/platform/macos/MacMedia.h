// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Media.h"

namespace quillmark::platform {

/// VideoToolbox and Image I/O.
class MacMedia final : public Media
{
public:
    std::optional<std::vector<VideoEncoder>> videoEncoders() const override;
    std::optional<std::vector<VideoDecoder>> videoDecoders() const override;
    std::optional<ImageTypes> imageTypes() const override;
    std::expected<CommandAnswer, NoAnswer> vainfo() const override
    {
        return std::unexpected(NoAnswer::Failed);
    }
};

} // namespace quillmark::platform
