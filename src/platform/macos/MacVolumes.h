// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Volumes.h"

namespace quillmark::platform {

class MacVolumes final : public Volumes
{
public:
    std::optional<StartupVolume> startupVolume() const override;
    std::optional<std::vector<DiskReading>> disks() const override;
    std::optional<std::vector<VolumeReading>> otherVolumes() const override;
};

} // namespace quillmark::platform
