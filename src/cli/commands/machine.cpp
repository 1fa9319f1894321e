// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "platform/recorded/recordMachine.h"

#include <memory>
#include <string>

namespace quillmark::cli {

namespace {

struct RecordOptions
{
    OutputFile output = {.path = "-"};
    bool withNames = false;
};

std::expected<void, Failure> record(const Session &session, const RecordOptions &options)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    const auto names = options.withNames ? platform::RecordedNames::Keep : platform::RecordedNames::LeaveOut;
    const auto recording = QByteArray::fromStdString(platform::recordMachine(**machine, names));
    const auto saved = options.output.save(session.output(), recording);
    return saved ? std::expected<void, Failure>() : std::unexpected(Failure{reasonFor(saved.error())});
}

} // namespace

void addMachine(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<RecordOptions>();
    auto *machine = program.add_subcommand("machine", "Work with recorded machines");
    machine->require_subcommand(1);
    const auto footer =
        helpFooter({"machine record --output my-machine.json", "inspect --machine my-machine.json"});
    machine->footer(footer);
    auto *command =
        machine->add_subcommand("record", "Write this machine's raw readings as a recorded machine");
    addOutputOptions(*command, options->output, "The file to write; without it, or with -, standard output");
    command->add_flag("--with-names", options->withNames,
                      "Keep the computer's name, volume names and addresses, which are left out otherwise");
    command->footer(footer);
    command->callback([options, &chosen] {
        chosen = [options](const Session &session) { return record(session, *options); };
    });
}

} // namespace quillmark::cli
