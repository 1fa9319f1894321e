// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"
#include "cli/TerminalConsole.h"
#include "platform/Machine.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <streambuf>
#include <string>

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

/// Writes what it is given to standard output at once, and keeps the reason for which that first failed: a
/// stream of the standard library forgets it.
class StandardOutput final : public std::streambuf
{
public:
    int error() const { return m_error; } ///< 0: all was written

protected:
    std::streamsize xsputn(const char *text, std::streamsize size) override
    {
        std::streamsize written = 0;
        while (written < size && m_error == 0) {
            const auto count = write(STDOUT_FILENO, text + written, static_cast<std::size_t>(size - written));
            if (count >= 0)
                written += count;
            else if (errno == EAGAIN)
                waitForRoom(); // another program has made the terminal that it shares with this one so
            else if (errno != EINTR)
                m_error = errno;
        }
        return written;
    }

    int overflow(int c) override
    {
        const char character = traits_type::to_char_type(c);
        return xsputn(&character, 1) == 1 ? c : traits_type::eof();
    }

private:
    static void waitForRoom()
    {
        pollfd output = {STDOUT_FILENO, POLLOUT, 0};
        poll(&output, 1, -1);
    }

    int m_error = 0;
};

int terminalColumns()
{
    constexpr int usual = 80;
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

/// https://no-color.org: set to anything but nothing.
bool environmentRefusesColor()
{
    const char *noColor = std::getenv("NO_COLOR");
    const char *terminal = std::getenv("TERM");
    return (noColor && *noColor) || (terminal && std::strcmp(terminal, "dumb") == 0);
}

QString ask(const QString &question)
{
    std::cerr << question.toStdString() << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return QString::fromStdString(answer);
}

} // namespace

int main(int argc, char **argv)
{
    using namespace quillmark;
    // A file that grows too long is an error like any other, with a reason and nothing left behind.
    std::signal(SIGXFSZ, SIG_IGN);
    const bool isTerminal = isatty(STDOUT_FILENO) == 1;
    StandardOutput standardOutput;
    std::ostream out(&standardOutput);
    cli::TerminalConsole console(isTerminal);
    const cli::Output output{.out = out,
                             .err = std::cerr,
                             .isTerminal = isTerminal,
                             .columns = isTerminal ? terminalColumns() : 80,
                             .colorIsWelcome = isTerminal && !environmentRefusesColor(),
                             .console = &console,
                             .ask = isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1 ? ask : nullptr};
    const int status = cli::run(argc, argv, output, &platform::thisMachine);

    if (standardOutput.error() == 0)
        return status;
    if (standardOutput.error() != EPIPE) // a reader that has seen enough is no news to anyone
        std::cerr << "quillmark: the output could not be written: " << std::strerror(standardOutput.error())
                  << '\n';
    return cli::Failed;
}
