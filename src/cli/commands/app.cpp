// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/RunApp.h"
#include "cli/Module.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "reports/Report.h"

#include <QFile>
#include <QFileInfo>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

std::expected<void, Failure> openWindow(const Session &session)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    const auto function = resolve(u"quillmark-app"_s, app::runAppName);
    if (!function)
        return std::unexpected(function.error());

    const auto &options = session.options();
    // By which windows are told apart, wherever each was started.
    const auto absolute = [](const std::string &path) {
        return path.empty() ? QString() : QFileInfo(QFile::decodeName(path.c_str())).absoluteFilePath();
    };
    const app::Launch launch{.machine = **machine,
                             .recording = absolute(options.machineFile),
                             .historyFile = absolute(options.historyFile),
                             .language = QString::fromStdString(options.language)};
    QString failure;
    const int status =
        reinterpret_cast<app::RunApp *>(*function)(reports::applicationVersion(), launch, failure);
    if (status != Done)
        return std::unexpected(Failure{failure});
    return {};
}

} // namespace

void addApp(CLI::App &program, Command &chosen)
{
    auto *command = program.add_subcommand("app", "Open the desktop application");
    command->footer(helpFooter({"app", "app --machine my-machine.json"}));
    command->callback([&chosen] { chosen = openWindow; });
}

} // namespace quillmark::cli
