// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Security.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// The protections as the kernel describes them. Runs no program, and opens no device.
class LinuxSecurity final : public Security
{
public:
    explicit LinuxSecurity(const Files &files);

    SecurityState read() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
