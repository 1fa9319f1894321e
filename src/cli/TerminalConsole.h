// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Console.h"

#include <csignal>

#include <termios.h>

namespace quillmark::cli {

/// The terminal at standard input and output. There is one in a program, and it is used by one thread.
///
/// While it has taken the screen: q, Esc and an interrupt (Ctrl-C) ask for the end; SIGTERM, SIGHUP and
/// SIGQUIT end the program as they always do, once the terminal is given back; SIGTSTP (Ctrl-Z) gives it
/// back, stops the program, and takes it again afterwards. Even a crash gives it back.
class TerminalConsole final : public Console
{
public:
    /// `isTerminal`: standard output is one.
    explicit TerminalConsole(bool isTerminal);
    TerminalConsole(const TerminalConsole &) = delete;
    TerminalConsole &operator=(const TerminalConsole &) = delete;
    ~TerminalConsole() override;

    Time now() const override { return std::chrono::steady_clock::now(); }
    Event waitUntil(Time time) override;
    bool canDraw() const override { return m_canDraw; }
    bool has256Colors() const override;
    Size size() const override;
    void takeScreen() override;
    void giveBackScreen() override;

private:
    void enterScreen();
    void leaveScreen();
    void installHandlers();
    void removeHandlers();
    void suspend();
    bool handleSignals(Event &event);
    bool asksForEnd();

    static void giveBackAndDie(int signal);

    bool m_canDraw;
    bool m_hasTaken = false;
    bool m_readsKeys = false;
    volatile std::sig_atomic_t m_isOnScreen = 0; ///< between entering and leaving it
    termios m_attributes{};                      ///< of the terminal as it was, while m_readsKeys
    sigset_t m_mask{};                           ///< of signals as it was, while m_hasTaken
};

} // namespace quillmark::cli
