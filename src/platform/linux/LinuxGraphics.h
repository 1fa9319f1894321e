// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Graphics.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// The graphics cards in /sys/class/drm, named by maker and driver. No device is opened, so that a sleeping
/// one stays asleep. There is no default device, as there is no Metal.
class LinuxGraphics final : public Graphics
{
public:
    explicit LinuxGraphics(const Files &files);

    GraphicsReading read() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
