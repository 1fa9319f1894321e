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
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark::cli {

namespace {

/// The command that was typed, as far as there is one.
const CLI::App &innermost(const CLI::App &program)
{
    const auto *app = &program;
    while (!app->get_subcommands().empty())
        app = app->get_subcommands().front();
    return *app;
}

/// The option or argument that the library's message names, of the command that was typed or those around it.
/// nullptr: none.
const CLI::Option *optionIn(const std::string &message, const CLI::App &program)
{
    for (const auto *app = &innermost(program); app; app = app->get_parent()) {
        for (const auto *option : app->get_options()) {
            if (message.find(option->get_name()) != std::string::npos)
                return option;
        }
    }
    return nullptr;
}

/// What is wrong with the values of an option.
std::string reasonFor(const CLI::Option &option, const CLI::Error &error)
{
    const auto name = option.get_name();
    if (dynamic_cast<const CLI::ConversionError *>(&error))
        return "'" + CLI::detail::join(option.results(), " ") + "' is no value for " + name;
    return option.count() > 1 ? name + " may be given only once" : name + " lacks its value";
}

/// What was wrong.
std::string reasonFor(const CLI::App &program, const CLI::Error &error)
{
    if (dynamic_cast<const CLI::ConversionError *>(&error) ||
        dynamic_cast<const CLI::ArgumentMismatch *>(&error)) {
        const auto *option = optionIn(error.what(), program);
        return option ? reasonFor(*option, error) : error.what();
    }
    const bool lacksCommand = dynamic_cast<const CLI::RequiredError *>(&error) &&
                              innermost(program).get_require_subcommand_min() > 0;
    if (!lacksCommand && !dynamic_cast<const CLI::ExtrasError *>(&error))
        return error.what();
    const auto words = program.remaining(true);
    const auto option =
        std::ranges::find_if(words, [](const std::string &word) { return word.starts_with('-'); });
    if (option != words.end())
        return "there is no option '" + *option + "'";
    if (words.empty())
        return "a command is missing";
    return lacksCommand ? "there is no command '" + words.front() + "'"
                        : "nothing is known of '" + words.front() + "' here";
}

/// One line for standard error, whatever the words in it hold.
void complain(const QString &reason, const Output &output)
{
    auto line = reason;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    output.err << "quillmark: " << printable(line).toStdString() << '\n';
}

/// Says what was wrong, and where help is.
int rejectCommandLine(const CLI::App &program, const CLI::Error &error, const Output &output)
{
    std::string command = program.get_name();
    for (const auto *app = &program; !app->get_subcommands().empty();) {
        app = app->get_subcommands().front();
        command += ' ' + app->get_name();
    }
    complain(QString::fromStdString(reasonFor(program, error)), output);
    output.err << "Try '" << command << " --help'.\n";
    return WrongCommandLine;
}

std::string namesSomeFile(const std::string &file)
{
    return file.empty() ? "names no file" : "";
}

constexpr std::size_t helpWidth = 79;
constexpr std::size_t helpColumn = 30; ///< where the library has what an option does

/// A line of help in several, where it is too long. An example stays whole, to be copied.
void wrap(std::string line, std::string &text)
{
    const bool isExample = line.starts_with("  quillmark ");
    const std::string indent(line.starts_with(' ') ? helpColumn : 0, ' ');
    while (!isExample && line.size() > helpWidth) {
        const auto end = line.rfind(' ', helpWidth);
        if (end == std::string::npos || end <= indent.size())
            break;
        text += line.substr(0, end) + '\n';
        line = indent + line.substr(end + 1);
    }
    text += line + '\n';
}

class HelpFormatter : public CLI::Formatter
{
public:
    std::string make_help(const CLI::App *app, std::string name, CLI::AppFormatMode mode) const override
    {
        std::istringstream lines(CLI::Formatter::make_help(app, std::move(name), mode));
        std::string text;
        for (std::string line; std::getline(lines, line);)
            wrap(std::move(line), text);
        return text;
    }

    /// Without the dots behind an option that may be repeated: they promise several values for one of it.
    std::string make_option_opts(const CLI::Option *option) const override
    {
        constexpr std::string_view dots = " ...";
        auto text = CLI::Formatter::make_option_opts(option);
        if (text.ends_with(dots))
            text.erase(text.size() - dots.size());
        return text;
    }
};

void addCommonOptions(CLI::App &program, CommonOptions &options)
{
    program
        .add_option("--machine", options.machineFile,
                    "Inspect this recorded machine instead of the one at hand")
        ->envname("QUILLMARK_MACHINE")
        ->check(namesSomeFile)
        ->type_name("FILE");
    program.add_option("--history", options.historyFile, "Keep the saved scans in this file")
        ->check(namesSomeFile)
        ->type_name("FILE");
    const auto languages = language::LanguageManager::available().join(QStringLiteral(", ")).toStdString();
    program.add_option("--language", options.language, "Interface language for this run: " + languages)
        ->check([languages](const std::string &tag) {
            if (!language::LanguageManager::match(QString::fromStdString(tag)).isEmpty())
                return std::string();
            return "there is no '" + tag + "'; the languages are: " + languages;
        })
        ->type_name("TAG");
    program.add_flag("--no-color", options.noColor, "No colours, even on a terminal");
}

/// Where nothing was typed, the command that the environment names: a Mac's Finder can pass no arguments, but
/// what Info.plist says goes into the environment.
std::vector<const char *> typedWords(int argumentCount, const char *const *arguments)
{
    std::vector<const char *> words(arguments, arguments + argumentCount);
    const char *command = std::getenv("QUILLMARK_COMMAND");
    if (words.size() == 1 && command && *command)
        words.push_back(command);
    return words;
}

} // namespace

int run(int argumentCount, const char *const *arguments, const Output &output,
        const MachineSource &thisMachine)
{
    CLI::App program("Tells what this computer can really do.", "quillmark");
    program.set_version_flag("--version", "quillmark " + reports::applicationVersion().toStdString());
    program.formatter(std::make_shared<HelpFormatter>());
    program.require_subcommand(1);
    program.fallthrough();
    program.footer("Examples:\n"
                   "  quillmark inspect --status warning\n"
                   "  quillmark export --output report.pdf\n"
                   "  quillmark history record && quillmark history list\n"
                   "'quillmark COMMAND --help' has more of each.");

    CommonOptions options;
    addCommonOptions(program, options);
    Command command;
    addInspect(program, command);
    addBattery(program, command);
    addMonitor(program, command);
    addHistory(program, command);
    addExport(program, command);
    addMachine(program, command);
    addUpdate(program, command);
    addApp(program, command);

    try {
        const auto words = typedWords(argumentCount, arguments);
        program.parse(static_cast<int>(words.size()), words.data());
    } catch (const CLI::Success &request) { // --help and --version
        program.exit(request, output.out, output.err);
        return Done;
    } catch (const CLI::Error &error) {
        return rejectCommandLine(program, error, output);
    }

    const Session session(output, thisMachine, options);
    if (const auto result = command(session); !result) {
        complain(result.error().reason, output);
        return Failed;
    }
    return Done;
}

} // namespace quillmark::cli
