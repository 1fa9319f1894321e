// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/posix/FileDescriptor.h"

// What POSIX leaves to each system when a program is started from one with several threads: to keep its files
// from a child that another thread starts at the same time. Each system's family of answers defines these.

namespace quillmark::platform {

struct Pipe
{
    FileDescriptor readingEnd;
    FileDescriptor writingEnd;
};

/// Both ends are empty when the system has no more.
Pipe makePipe();

/// To be added to the flags of posix_spawnattr_setflags(), so that a child gets no file but those it is
/// given.
short spawnFlags();

} // namespace quillmark::platform
