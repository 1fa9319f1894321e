// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/CommandLine.h"
#include "support/Recordings.h"

#include <QStringList>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace quillmark::support {

struct Terminal
{
    int columns = 0; ///< 0: the output is none
    bool color = false;
    std::function<QString(const QString &question)> ask; ///< empty: nobody is there
    cli::Console *console = nullptr;
    bool isClosed = false; ///< what is written to it is lost
};

struct Outcome
{
    int status = -1;
    QString out;
    QString err;
};

/// Runs the program on the small Mac of the tests, with `arguments` divided at spaces; "~" in one stands for
/// a space.
inline Outcome runWith(const QString &arguments, const Terminal &terminal = {})
{
    std::vector<std::string> texts = {"quillmark"};
    for (auto argument : arguments.split(u' ', Qt::SkipEmptyParts))
        texts.push_back(argument.replace(u'~', u' ').toStdString());
    std::vector<const char *> pointers;
    for (const auto &text : texts)
        pointers.push_back(text.c_str());

    std::ostringstream out;
    std::ostringstream err;
    if (terminal.isClosed)
        out.setstate(std::ios::badbit);
    const cli::Output output{.out = out,
                             .err = err,
                             .isTerminal = terminal.columns > 0,
                             .columns = terminal.columns,
                             .colorIsWelcome = terminal.color,
                             .console = terminal.console,
                             .ask = terminal.ask};
    const int status =
        cli::run(static_cast<int>(pointers.size()), pointers.data(), output, [] { return changedMachine(); });
    return {status, QString::fromStdString(out.str()), QString::fromStdString(err.str())};
}

} // namespace quillmark::support
