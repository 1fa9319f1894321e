// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/programFile.h"

#include <system_error>

namespace quillmark::platform {

std::filesystem::path programFile()
{
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown);
}

} // namespace quillmark::platform
