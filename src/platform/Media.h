// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace quillmark::platform {

/// An entry of VideoToolbox's list of encoders (VTCopyVideoEncoderList). A codec may have several.
struct VideoEncoder
{
    std::uint32_t codecType = 0;                ///< four-character code: 'avc1', 'hvc1', …
    std::optional<bool> isHardwareAccelerated;  ///< absent means no

    bool operator==(const VideoEncoder &) const = default;
};

/// What the user has allowed this program (AVAuthorizationStatus). A newer system may give other numbers.
enum class AuthorizationStatus : std::int32_t { NotDetermined = 0, Restricted = 1, Denied = 2, Authorized = 3 };

enum class CaptureKind { Video, Audio };

class Media
{
public:
    virtual ~Media() = default;

    /// None when the system gives no list.
    virtual std::optional<std::vector<VideoEncoder>> videoEncoders() const = 0;

    /// Whether cameras or microphones may be used; asking does not prompt. None where there is no such permission.
    virtual std::optional<AuthorizationStatus> authorization(CaptureKind kind) const = 0;
};

} // namespace quillmark::platform
