// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include <array>
#include <cstdlib>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include QUILLMARK_FORKPTY_HEADER
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

/// An interactive shell in a terminal of its own, which stops and resumes what is run in it.
class TerminalSession
{
public:
    TerminalSession(int columns, int rows)
    {
        const winsize size = sizeOf(columns, rows);
        if (::pipe(m_lifeline.data()) != 0)
            qFatal("no pipe");
        m_shell = ::forkpty(&m_terminal, nullptr, nullptr, &size);
        if (m_shell < 0)
            qFatal("no pseudo-terminal");
        if (m_shell == 0) {
            ::close(m_lifeline[0]);
            ::setenv("TERM", "xterm-256color", 1);
            ::unsetenv("NO_COLOR");
            ::execl("/bin/sh", "sh", "-i", nullptr);
            std::_Exit(127);
        }
        ::close(m_lifeline[1]);
    }
    ~TerminalSession()
    {
        if (m_terminal >= 0)
            ::kill(-foreground(), SIGKILL);
        ::kill(m_shell, SIGKILL);
        hangUp();
        ::close(m_lifeline[0]);
        ::waitpid(m_shell, nullptr, 0);
    }
    TerminalSession(const TerminalSession &) = delete;
    TerminalSession &operator=(const TerminalSession &) = delete;

    void resize(int columns, int rows) const
    {
        const winsize size = sizeOf(columns, rows);
        ::ioctl(m_terminal, TIOCSWINSZ, &size);
    }
    void type(const QByteArray &keys) const
    {
        if (::write(m_terminal, keys.constData(), static_cast<std::size_t>(keys.size())) != keys.size())
            qFatal("the terminal takes no keys");
    }
    /// The process group that has the terminal.
    pid_t foreground() const { return ::tcgetpgrp(m_terminal); }

    /// Reads on until this text has come; what came before it, or none when it does not come.
    std::optional<QByteArray> waitFor(const QByteArray &text)
    {
        const QDeadlineTimer deadline(60000);
        while (!m_output.contains(text)) {
            pollfd terminal = {m_terminal, POLLIN, 0};
            std::array<char, 4096> buffer{};
            ::poll(&terminal, 1, 1000);
            const auto count = terminal.revents != 0 ? ::read(m_terminal, buffer.data(), buffer.size()) : 0;
            if (count < 0 || deadline.hasExpired())
                return std::nullopt;
            m_output.append(buffer.data(), count);
        }
        const auto at = m_output.indexOf(text);
        const auto before = m_output.first(at);
        m_output.remove(0, at + text.size());
        return before;
    }

    /// The terminal is closed, as a window is; whether all that ran in it has ended then.
    bool hangUp()
    {
        ::close(std::exchange(m_terminal, -1));
        pollfd lifeline = {m_lifeline[0], POLLIN, 0};
        return ::poll(&lifeline, 1, 60000) == 1;
    }

private:
    static winsize sizeOf(int columns, int rows)
    {
        return {.ws_row = static_cast<unsigned short>(rows),
                .ws_col = static_cast<unsigned short>(columns),
                .ws_xpixel = 0,
                .ws_ypixel = 0};
    }

    int m_terminal = -1;
    pid_t m_shell = -1;
    std::array<int, 2> m_lifeline{}; ///< the shell and its jobs hold the other end
    QByteArray m_output;             ///< read and not yet waited for
};
