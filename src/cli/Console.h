// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace quillmark::cli {

/// What surrounds a command that goes on until it is ended: the passing of time, and the terminal that it
/// draws on.
class Console
{
public:
    using Time = std::chrono::steady_clock::time_point;

    enum class Event {
        TimeUp,
        Resized,  ///< the terminal has another size
        Resumed,  ///< the program was stopped for a while; the screen is empty
        EndAsked, ///< by a key, or by an interrupt
    };

    struct Size
    {
        int columns = 0;
        int rows = 0;

        bool operator==(const Size &) const = default;
    };

    virtual ~Console() = default;

    virtual Time now() const = 0;

    /// Returns at that time, or earlier with what happened. While the screen is not taken nothing but the
    /// time does, and signals do what they do to any program.
    virtual Event waitUntil(Time time) = 0;

    /// Whether there is a terminal whose cursor can be moved.
    virtual bool canDraw() const = 0;
    virtual bool has256Colors() const = 0;
    virtual Size size() const = 0;

    /// Takes the whole screen, empty and without a cursor; keys are no longer echoed. Whatever ends the
    /// program, the terminal is given back as it was.
    virtual void takeScreen() = 0;
    virtual void giveBackScreen() = 0;
};

} // namespace quillmark::cli
