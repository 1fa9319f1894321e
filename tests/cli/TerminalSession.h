// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include <array>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

/// A program in a terminal of its own, the job in the foreground of something like a shell, so that it can be
/// stopped and resumed as from one.
class TerminalSession
{
public:
    TerminalSession(const std::vector<std::string> &command, int columns, int rows)
        : m_terminal(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        std::array<int, 2> news = {};
        if (m_terminal < 0 || ::grantpt(m_terminal) != 0 || ::unlockpt(m_terminal) != 0 ||
            ::pipe(news.data()) != 0)
            qFatal("no pseudo-terminal");
        const std::string name = ::ptsname(m_terminal);
        m_end = ::open(name.c_str(), O_RDWR | O_NOCTTY);
        resize(columns, rows);
        attributesBefore = attributes();
        m_shell = ::fork();
        if (m_shell == 0) {
            ::close(m_terminal);
            ::close(m_end);
            ::close(news[0]);
            runShell(command, name, news[1]);
        }
        ::close(news[1]);
        m_news = news[0];
        if (::read(m_news, &job, sizeof job) != sizeof job)
            qFatal("the program does not start");
    }
    ~TerminalSession()
    {
        ::kill(job, SIGKILL);
        hangUp();
        ::close(m_news);
        ::waitpid(m_shell, nullptr, 0);
    }
    TerminalSession(const TerminalSession &) = delete;
    TerminalSession &operator=(const TerminalSession &) = delete;

    void resize(int columns, int rows) const
    {
        winsize size = {};
        size.ws_col = static_cast<unsigned short>(columns);
        size.ws_row = static_cast<unsigned short>(rows);
        ::ioctl(m_terminal, TIOCSWINSZ, &size);
    }
    void type(const QByteArray &keys) const
    {
        if (::write(m_terminal, keys.constData(), static_cast<std::size_t>(keys.size())) != keys.size())
            qFatal("the terminal takes no keys");
    }
    /// The terminal is closed, as a window is.
    void hangUp()
    {
        ::close(std::exchange(m_end, -1));
        ::close(std::exchange(m_terminal, -1));
    }

    /// Reads on until this text has come; whether it did. What has come until then is taken out of `output`.
    bool waitFor(const QByteArray &text)
    {
        const QDeadlineTimer deadline(60000);
        while (!output.contains(text)) {
            if (deadline.hasExpired() || !readSome(1000))
                return false;
        }
        output.remove(0, output.indexOf(text) + text.size());
        return true;
    }

    /// How the job was stopped or ended, as waitpid(2) tells it; what it wrote last is in `output` then.
    std::optional<int> waitForNews()
    {
        const QDeadlineTimer deadline(60000);
        pollfd news = {m_news, POLLIN, 0};
        while (::poll(&news, 1, 0) == 0) {
            readSome(50);
            if (deadline.hasExpired())
                return std::nullopt;
        }
        while (m_terminal >= 0 && readSome(0)) {
        }
        int status = 0;
        return ::read(m_news, &status, sizeof status) == sizeof status ? std::optional(status) : std::nullopt;
    }

    /// Of the terminal as it is now.
    QByteArray attributes() const
    {
        termios now = {};
        ::tcgetattr(m_end, &now);
        return QByteArray::number(now.c_lflag, 16) + ' ' + QByteArray::number(now.c_iflag, 16) + ' ' +
               QByteArray::number(now.c_oflag, 16);
    }

    pid_t job = 0;
    QByteArray attributesBefore;
    QByteArray output; ///< read and not yet waited for

private:
    bool readSome(int patience)
    {
        pollfd terminal = {m_terminal, POLLIN, 0};
        if (::poll(&terminal, 1, patience) <= 0)
            return patience > 0;
        std::array<char, 4096> buffer{};
        const auto count = ::read(m_terminal, buffer.data(), buffer.size());
        if (count > 0)
            output.append(buffer.data(), count);
        return count > 0;
    }

    /// Runs the command as its foreground job, and passes on what becomes of it.
    [[noreturn]] static void runShell(const std::vector<std::string> &command, const std::string &terminal,
                                      int news)
    {
        ::setsid();
        const int end = ::open(terminal.c_str(), O_RDWR);
        ::ioctl(end, TIOCSCTTY, 0);
        ::signal(SIGTTOU, SIG_IGN);
        ::signal(SIGHUP, SIG_IGN);
        ::signal(SIGPIPE, SIG_IGN);
        const pid_t child = ::fork();
        if (child == 0) {
            ::setpgid(0, 0);
            ::tcsetpgrp(end, ::getpid());
            ::signal(SIGTTOU, SIG_DFL);
            ::signal(SIGHUP, SIG_DFL);
            ::signal(SIGPIPE, SIG_DFL);
            for (const int descriptor : {0, 1, 2})
                ::dup2(end, descriptor);
            ::close(end);
            ::close(news);
            std::vector<char *> arguments;
            for (const auto &word : command)
                arguments.push_back(const_cast<char *>(word.c_str()));
            arguments.push_back(nullptr);
            ::setenv("TERM", "xterm-256color", 1);
            ::unsetenv("NO_COLOR");
            ::execv(arguments.front(), arguments.data());
            std::_Exit(127);
        }
        const auto pass = [news](int word) {
            if (::write(news, &word, sizeof word) != sizeof word)
                std::_Exit(1);
        };
        pass(child);
        for (int status = 0; ::waitpid(child, &status, WUNTRACED) == child;) {
            pass(status);
            if (!WIFSTOPPED(status))
                break;
        }
        std::_Exit(0);
    }

    int m_terminal;
    int m_end = -1; ///< of the terminal that the program is at; held so that it lives on without one
    int m_news = -1;
    pid_t m_shell = 0;
};
