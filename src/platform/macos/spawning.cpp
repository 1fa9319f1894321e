// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/spawning.h"

#include <array>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace quillmark::platform {

Pipe makePipe()
{
    std::array<int, 2> ends = {-1, -1};
    if (::pipe(ends.data()) != 0)
        return {};
    // For children that others start; ours are kept from it by the flag below, without a moment's gap.
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

short spawnFlags()
{
    return POSIX_SPAWN_CLOEXEC_DEFAULT;
}

} // namespace quillmark::platform
