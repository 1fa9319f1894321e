// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Media.h"
#include "platform/Registry.h"

namespace quillmark::platform
{

/// Linux keeps no list of encoders, and no permission of the kind that a Mac's user grants.
class LinuxMedia final : public Media
{
public:
    std::optional<std::vector<VideoEncoder>> videoEncoders() const override { return std::nullopt; }
    std::optional<AuthorizationStatus> authorization(CaptureKind) const override { return std::nullopt; }
};

class LinuxRegistry final : public Registry
{
public:
    std::vector<PropertyMap> services(std::string_view) const override { return {}; }
};

} // namespace quillmark::platform
