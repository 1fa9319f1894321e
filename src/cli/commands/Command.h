// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Session.h"

#include <CLI/App.hpp>

#include <expected>
#include <functional>

namespace quillmark::cli {

/// Called once the whole command line has been understood.
using Command = std::function<std::expected<void, Failure>(const Session &)>;

// Each adds its sub-command to the program; when that one is typed, `chosen` becomes what to do.
void addApp(CLI::App &program, Command &chosen);
void addBattery(CLI::App &program, Command &chosen);
void addExport(CLI::App &program, Command &chosen);
void addHistory(CLI::App &program, Command &chosen);
void addInspect(CLI::App &program, Command &chosen);
void addMachine(CLI::App &program, Command &chosen);
void addMonitor(CLI::App &program, Command &chosen);
void addUpdate(CLI::App &program, Command &chosen);

} // namespace quillmark::cli
