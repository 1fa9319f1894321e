// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>

// Checks for programs that are compiled for a Mac and run on Linux, where no test framework is at hand.

namespace standin {

inline int failures = 0;

inline void check(bool holds, const char *condition, const char *file, int line)
{
    if (holds)
        return;
    ++failures;
    std::printf("%s:%d: does not hold: %s\n", file, line, condition);
}

/// The status to end the program with.
inline int result()
{
    std::printf("%s\n", failures == 0 ? "all hold" : "FAILED");
    return failures == 0 ? 0 : 1;
}

} // namespace standin

#define CHECK(...) ::standin::check((__VA_ARGS__), #__VA_ARGS__, __FILE__, __LINE__)
