// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Output.h"
#include "platform/Machine.h"

#include <functional>
#include <memory>

namespace quillmark::cli {

enum ExitStatus {
    Done = 0,
    Failed = 1,           ///< what was asked for could not be done; the reason is on standard error
    WrongCommandLine = 2, ///< the arguments make no sense; standard error says why and where help is
};

/// Makes the machine that is inspected when no recording is named.
using MachineSource = std::function<std::unique_ptr<platform::Machine>()>;

/// Runs the program `quillmark` with its arguments, and returns its exit status.
int run(int argumentCount, const char *const *arguments, const Output &output,
        const MachineSource &thisMachine);

} // namespace quillmark::cli
