// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Graphics.h"

namespace quillmark::platform {

/// Metal.
class MacGraphics final : public Graphics
{
public:
    GraphicsReading read() const override;
};

} // namespace quillmark::platform
