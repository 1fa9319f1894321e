// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Displays.h"

namespace quillmark::platform {

/// Core Graphics and AppKit.
class MacDisplays final : public Displays
{
public:
    std::optional<std::vector<DisplayReading>> displays() const override;
};

} // namespace quillmark::platform
