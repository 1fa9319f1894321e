// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Volumes.h"
#include "platform/linux/Files.h"
#include "platform/linux/MountTable.h"

namespace quillmark::platform {

class LinuxVolumes final : public Volumes
{
public:
    /// The table must live longer.
    LinuxVolumes(const Files &files, const MountTable &mountTable);

    std::optional<StartupVolume> startupVolume() const override;
    std::optional<std::vector<DiskReading>> disks() const override;
    std::optional<std::vector<VolumeReading>> otherVolumes() const override;

private:
    Files m_files;
    const MountTable &m_mountTable;
};

} // namespace quillmark::platform
