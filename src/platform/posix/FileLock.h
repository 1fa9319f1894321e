// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/posix/FileDescriptor.h"

#include <chrono>
#include <expected>
#include <string>

namespace quillmark::platform {

/// Lets one program at a time write a file: an advisory lock (flock) on a file beside it. The system gives
/// the lock up when its holder ends, however that happens; the lock file stays.
class FileLock
{
public:
    /// Why the lock could not be had.
    struct Refusal
    {
        int error = 0;  ///< errno; 0: another program holds it
        int holder = 0; ///< that program's process number; 0: not known
    };

    /// Takes the lock on the lock file `path`, which is made when it is missing; waits that long for another
    /// holder. True: it was not held before, or its file had been replaced.
    std::expected<bool, Refusal> take(const std::string &path, std::chrono::milliseconds patience);
    void release() { m_file = FileDescriptor(); }

private:
    bool isInPlace(const std::string &path) const;

    FileDescriptor m_file;
};

} // namespace quillmark::platform
