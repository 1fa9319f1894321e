// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/CommandLine.h"
#include "cli/TerminalPage.h"
#include "language/LanguageManager.h"

#include <expected>
#include <memory>
#include <string>

namespace quillmark::cli {

/// What the options that every command takes say.
struct CommonOptions
{
    std::string machineFile; ///< of a recording; empty: this machine
    std::string historyFile; ///< empty: the one of the interface
    std::string language;    ///< tag; empty: as was chosen in the window, else as the environment asks
    bool noColor = false;
};

/// What a command works with: its output, the machine, the language.
class Session
{
public:
    Session(const Output &output, const MachineSource &thisMachine, const CommonOptions &options);

    const Output &output() const { return m_output; }
    const CommonOptions &options() const { return m_options; }
    bool usesColor() const { return m_output.colorIsWelcome && !m_options.noColor; }
    /// How to lay text out for people: within the terminal, or without end where there is none.
    TerminalStyle terminalStyle() const
    {
        return {.columns = m_output.isTerminal ? m_output.columns : 0, .color = usesColor()};
    }
    const language::LanguageManager &language() const { return m_language; }

    /// The machine to inspect: the recording that was named, else this one.
    std::expected<std::unique_ptr<platform::Machine>, Failure> openMachine() const;

    /// Where the scans are kept.
    QString historyFile() const;

private:
    const Output &m_output;
    const MachineSource &m_thisMachine;
    const CommonOptions &m_options;
    language::LanguageManager m_language;
};

} // namespace quillmark::cli
