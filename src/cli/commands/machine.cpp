// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/commands/Command.h"
#include "platform/recorded/recordMachine.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>
#include <string>

namespace quillmark::cli {

namespace {

struct RecordOptions
{
    std::string output = "-";
    bool withNames = false;
    bool force = false;
};

bool writeAll(QIODevice &target, QIODevice::OpenMode mode, const QByteArray &text)
{
    return target.open(mode) && target.write(text) == text.size();
}

/// Writes the whole file or nothing. A device or a pipe is written to, not replaced.
std::expected<void, Failure> save(const QString &path, const QByteArray &text, bool mayReplace)
{
    const auto failure = [&path](const QString &reason) {
        return std::unexpected(Failure{QStringLiteral("%1: %2").arg(path, reason)});
    };
    const QFileInfo target(path);
    if (target.isDir())
        return failure(QStringLiteral("is a folder"));
    if (target.exists() && !target.isFile()) {
        QFile file(path);
        if (!writeAll(file, QIODevice::WriteOnly | QIODevice::Unbuffered, text))
            return failure(file.errorString());
        return {};
    }
    if (target.exists() && !mayReplace)
        return failure(QStringLiteral("already exists (--force replaces it)"));
    QSaveFile file(path);
    if (!writeAll(file, QIODevice::WriteOnly, text) || !file.commit())
        return failure(file.errorString());
    return {};
}

std::expected<void, Failure> record(const Session &session, const RecordOptions &options)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    const auto names = options.withNames ? platform::RecordedNames::Keep : platform::RecordedNames::LeaveOut;
    const auto recording = QByteArray::fromStdString(platform::recordMachine(**machine, names));
    if (options.output != "-")
        return save(QString::fromStdString(options.output), recording, options.force);
    session.output().write(recording);
    return {};
}

} // namespace

void addMachine(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<RecordOptions>();
    auto *machine = program.add_subcommand("machine", "Work with recorded machines");
    machine->require_subcommand(1);
    auto *command =
        machine->add_subcommand("record", "Write this machine's raw readings as a recorded machine");
    command->add_option("--output", options->output, "The file to write; - is standard output")
        ->type_name("FILE")
        ->check([](const std::string &file) { return std::string(file.empty() ? "names no file" : ""); });
    command->add_flag("--with-names", options->withNames,
                      "Keep the computer's name, volume names and addresses, which are left out otherwise");
    command->add_flag("--force", options->force, "Replace the file if it exists");
    command->footer(std::string(commonOptionsHint) + "\nExamples:\n"
                                                     "  quillmark machine record --output my-machine.json\n"
                                                     "  quillmark inspect --machine my-machine.json");
    command->callback([options, &chosen] {
        chosen = [options](const Session &session) { return record(session, *options); };
    });
}

} // namespace quillmark::cli
