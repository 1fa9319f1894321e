// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"

#include "cli/Session.h"
#include "cli/TextWidth.h"
#include "cli/commands/Command.h"
#include "reports/Report.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>

namespace quillmark::cli {

namespace {

/// What was wrong, in one line.
std::string reasonFor(const CLI::App &program, const CLI::Error &error)
{
    if (error.get_name() == "RequiredError") { // of a command; no option is required
        const auto words = program.remaining(true);
        if (words.empty())
            return "a command is missing";
        return (words.front().starts_with('-') ? "there is no option '" : "there is no command '") +
               words.front() + "'";
    }
    std::string reason = error.what();
    std::ranges::replace(reason, '\n', ' ');
    return reason;
}

/// Says what was wrong, and where help is.
int rejectCommandLine(const CLI::App &program, const CLI::Error &error, const Output &output)
{
    std::string command = program.get_name();
    for (const auto *app = &program; !app->get_subcommands().empty();) {
        app = app->get_subcommands().front();
        command += ' ' + app->get_name();
    }
    output.err << "quillmark: " << reasonFor(program, error) << "\nTry '" << command << " --help'.\n";
    return WrongCommandLine;
}

void addCommonOptions(CLI::App &program, CommonOptions &options)
{
    program
        .add_option("--machine", options.machineFile,
                    "Inspect this recorded machine instead of the one at hand")
        ->envname("QUILLMARK_MACHINE")
        ->type_name("FILE");
    program.add_option("--language", options.language, "Interface language for this run")
        ->check([](const std::string &tag) {
            if (!language::LanguageManager::match(QString::fromStdString(tag)).isEmpty())
                return std::string();
            return "there is no '" + tag + "'; the languages are: " +
                   language::LanguageManager::available().join(QStringLiteral(", ")).toStdString();
        })
        ->type_name("TAG");
    program.add_flag("--no-color", options.noColor, "No colours, even on a terminal");
}

int report(const Failure &failure, const Output &output)
{
    auto line = failure.reason;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    output.err << "quillmark: " << printable(line).toStdString() << '\n';
    return Failed;
}

} // namespace

int run(int argumentCount, const char *const *arguments, const Output &output,
        const MachineSource &thisMachine)
{
    CLI::App program("Tells what this computer can really do.", "quillmark");
    program.set_version_flag("--version", "quillmark " + reports::applicationVersion().toStdString());
    program.require_subcommand(1);
    program.fallthrough();

    CommonOptions options;
    addCommonOptions(program, options);
    Command command;
    addInspect(program, command);
    addMachine(program, command);

    try {
        program.parse(argumentCount, arguments);
    } catch (const CLI::Success &request) { // --help and --version
        program.exit(request, output.out, output.err);
        return Done;
    } catch (const CLI::Error &error) {
        return rejectCommandLine(program, error, output);
    }

    const Session session(output, thisMachine, options);
    if (const auto result = command(session); !result)
        return report(result.error(), output);
    return Done;
}

} // namespace quillmark::cli
