// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Output.h"
#include "reports/saveFile.h"

#include <CLI/App.hpp>
#include <CLI/Validators.hpp>
#include <QByteArray>
#include <QStringList>

#include <expected>
#include <string>
#include <vector>

// What several commands have in common.

namespace quillmark::cli {

/// What stands below a command's own options in its help: notes on them, what every command takes, and
/// examples, of which each is the words after the program's name.
std::string helpFooter(const std::vector<std::string> &examples, const std::string &notes = {});

/// Lets one of the names through; otherwise says what there is.
CLI::Validator isOneOf(const QStringList &names, const std::string &kind);

/// --section KEY, any number of them.
void addSectionOption(CLI::App &command, std::vector<std::string> &sections);

/// Where --output and --force send what a command writes.
struct OutputFile
{
    std::string path; ///< "-": standard output; empty: not given
    bool mayReplace = false;

    bool isStandardOutput() const { return path == "-"; }
    std::expected<void, reports::SaveError> save(const Output &output, const QByteArray &bytes) const;
};

/// `use` says what the file is for, and what happens without one.
void addOutputOptions(CLI::App &command, OutputFile &file, const std::string &use);

/// "PATH: You don’t have permission to write there.", with what helps where an option does.
QString reasonFor(const reports::SaveError &error);

} // namespace quillmark::cli
