// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Command.h"
#include "platform/posix/FileDescriptor.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillmark::platform {

/// A helper program of the system's, run for what it says. It starts at once, so that several run side by
/// side. Nothing of this process reaches it: it has no input, none of the caller's files and signals, and of
/// the environment only what it is given.
class ChildProcess
{
public:
    using Clock = std::chrono::steady_clock;

    /// `command` is the program's absolute path and its arguments; no shell comes between. `environment`
    /// ("NAME=value") is added to LC_ALL=C.
    explicit ChildProcess(const std::vector<std::string> &command,
                          const std::vector<std::string> &environment = {});
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    /// Ends the program, with whatever it started, if it still runs.
    ~ChildProcess();

    /// Waits for the program's end. None when it could not be started, crashed, said more than a MiB or runs
    /// on beyond the deadline. To be called once.
    std::optional<CommandAnswer> answer(Clock::time_point deadline);

private:
    enum Stream { Output, Error, StreamCount };

    bool readToEnd(Clock::time_point deadline);
    std::optional<int> waitStatus(Clock::time_point deadline);

    FileDescriptor m_streams[StreamCount];
    std::string m_texts[StreamCount];
    pid_t m_id = 0; ///< 0 when nothing runs
};

} // namespace quillmark::platform
