// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Command.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// An entry of VideoToolbox's list of encoders (VTCopyVideoEncoderList). A codec may have several.
struct VideoEncoder
{
    std::uint32_t codecType = 0;               ///< four-character code: 'avc1', 'hvc1', …
    std::optional<bool> isHardwareAccelerated; ///< absent means no

    bool operator==(const VideoEncoder &) const = default;
};

/// Whether a codec is decoded in hardware, asked after the supplemental decoders were registered.
struct VideoDecoder
{
    std::uint32_t codecType = 0;
    bool isHardwareSupported = false;

    bool operator==(const VideoDecoder &) const = default;
};

/// Uniform type identifiers of image formats: "public.heic".
struct ImageTypes
{
    std::vector<std::string> readable;
    std::vector<std::string> writable;

    bool operator==(const ImageTypes &) const = default;
};

/// Why there is no answer about video acceleration.
enum class NoAnswer {
    NoDevice,     ///< no render node
    NotInstalled, ///< a render node, but no program that asks it
    Asleep,       ///< asking would wake the graphics processor
    Failed        ///< no permission, a crash, an answer that came late
};

class Media
{
public:
    virtual ~Media() = default;

    /// None, here and below, when the system gives no list.
    virtual std::optional<std::vector<VideoEncoder>> videoEncoders() const = 0;
    /// The codecs that this program shows. One that is missing is not decoded in hardware.
    virtual std::optional<std::vector<VideoDecoder>> videoDecoders() const = 0;
    virtual std::optional<ImageTypes> imageTypes() const = 0;

    /// What `vainfo` says of the first render node that is awake and that this user may use: Linux alone. A
    /// child process, because video drivers crash; it has two seconds.
    virtual std::expected<CommandAnswer, NoAnswer> vainfo() const = 0;
};

} // namespace quillmark::platform
