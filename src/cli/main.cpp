// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"
#include "platform/Machine.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

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

} // namespace

int main(int argc, char **argv)
{
    using namespace quillmark;
    const bool isTerminal = isatty(STDOUT_FILENO) == 1;
    const cli::Output output{.out = std::cout,
                             .err = std::cerr,
                             .isTerminal = isTerminal,
                             .columns = isTerminal ? terminalColumns() : 80,
                             .colorIsWelcome = isTerminal && !environmentRefusesColor()};
    const int status = cli::run(argc, argv, output, &platform::thisMachine);

    errno = 0;
    std::cout.flush();
    if (std::cout.good())
        return status;
    if (errno != EPIPE) // a reader that has seen enough is no news to anyone
        std::cerr << "quillmark: the output could not be written: " << std::strerror(errno) << '\n';
    return cli::Failed;
}
