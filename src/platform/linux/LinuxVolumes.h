// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Volumes.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

class LinuxVolumes final : public Volumes
{
public:
    explicit LinuxVolumes(const Files &files);

    std::optional<StartupVolume> startupVolume() const override;
    std::optional<std::vector<DiskReading>> disks() const override;
    std::optional<std::vector<VolumeReading>> otherVolumes() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
