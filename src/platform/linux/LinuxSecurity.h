// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Security.h"
#include "platform/linux/Files.h"
#include "platform/linux/MountTable.h"

namespace quillmark::platform {

/// The protections as the kernel describes them. Runs no program, and opens no device.
class LinuxSecurity final : public Security
{
public:
    /// The table must live longer.
    LinuxSecurity(const Files &files, const MountTable &mountTable);

    SecurityState read() const override;

private:
    Files m_files;
    const MountTable &m_mountTable;
};

} // namespace quillmark::platform
