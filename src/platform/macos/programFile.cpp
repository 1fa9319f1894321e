// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/programFile.h"

#include <cstdint>
#include <system_error>
#include <vector>

#include <mach-o/dyld.h>

namespace quillmark::platform {

std::filesystem::path programFile()
{
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size); // tells how long the path is
    std::vector<char> path(size);
    if (path.empty() || _NSGetExecutablePath(path.data(), &size) != 0)
        return {};
    std::error_code unknown;
    return std::filesystem::canonical(path.data(), unknown);
}

} // namespace quillmark::platform
