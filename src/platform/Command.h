// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace quillmark::platform {

/// What a helper program of the system's said, where it has no other interface.
struct CommandAnswer
{
    int exitStatus = 0;
    std::string output; ///< standard output, then standard error; bytes as they came

    bool operator==(const CommandAnswer &) const = default;
};

} // namespace quillmark::platform
