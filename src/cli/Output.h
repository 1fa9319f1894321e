// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Console.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <ostream>

namespace quillmark::cli {

/// Where a command writes, and what is known of it. Data goes to `out` and nothing else does.
struct Output
{
    std::ostream &out;
    std::ostream &err;
    bool isTerminal = false;     ///< `out` is one
    int columns = 80;            ///< its width
    bool colorIsWelcome = false; ///< it is a terminal, and the environment does not say NO_COLOR
    Console *console = nullptr;  ///< for what goes on and on; without one nothing is waited for or redrawn
    /// Puts a question to the person at the terminal and gives the line that was typed; empty: nobody is
    /// there.
    std::function<QString(const QString &question)> ask;

    /// Whether the answer is a yes, in the interface language or in English; anything else is a no. Somebody
    /// has to be there.
    bool confirms(const QString &question) const;

    void write(const QString &text) const;
    void write(const QByteArray &utf8) const;
};

/// Why a command could not do what it was asked: one line for standard error.
struct Failure
{
    QString reason;
};

} // namespace quillmark::cli
