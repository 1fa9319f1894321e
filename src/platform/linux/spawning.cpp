// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/spawning.h"

#include <array>

#include <fcntl.h>
#include <unistd.h>

namespace quillmark::platform {

Pipe makePipe()
{
    std::array<int, 2> ends = {-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

short spawnFlags()
{
    return 0;
}

} // namespace quillmark::platform
