// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacKernelValues.h"

#include <cerrno>
#include <string>

#include <sys/sysctl.h>

namespace quillmark::platform {

std::optional<Bytes> MacKernelValues::read(std::string_view name) const
{
    const std::string terminated(name);
    // A value may grow between the two calls; one that does so again and again is not worth having.
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::size_t size = 0;
        if (::sysctlbyname(terminated.c_str(), nullptr, &size, nullptr, 0) != 0)
            return std::nullopt;
        Bytes value(size);
        if (::sysctlbyname(terminated.c_str(), value.data(), &size, nullptr, 0) == 0) {
            value.resize(size);
            return value;
        }
        if (errno != ENOMEM)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace quillmark::platform
