// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Displays.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// The connectors in /sys/class/drm to which a display is connected and that show a picture, by card and
/// name, with what the display says of itself. No card is opened, as that would wake it.
class LinuxDisplays final : public Displays
{
public:
    explicit LinuxDisplays(const Files &files);

    std::optional<std::vector<DisplayReading>> displays() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
