// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/Session.h"

#include "history/ScanHistory.h"
#include "platform/recorded/RecordedMachine.h"

#include <QFile>
#include <QStringList>

namespace quillmark::cli {

namespace {

QStringList languageOrder(const CommonOptions &options)
{
    if (!options.language.empty())
        return {QString::fromStdString(options.language)};
    return QStringList{settings::Settings().value(language::languageKey)} + language::environmentLanguages();
}

} // namespace

Session::Session(const Output &output, const MachineSource &thisMachine, const CommonOptions &options)
    : m_output(output)
    , m_thisMachine(thisMachine)
    , m_options(options)
    , m_language(languageOrder(options))
{}

std::expected<std::unique_ptr<platform::Machine>, Failure> Session::openMachine() const
{
    if (m_options.machineFile.empty())
        return m_thisMachine();
    auto machine = platform::openRecording(m_options.machineFile);
    if (!machine)
        return std::unexpected(Failure{QString::fromStdString(machine.error().text)});
    return std::move(*machine);
}

QString Session::historyFile() const
{
    return m_options.historyFile.empty() ? history::ScanHistory::defaultFile()
                                         : QFile::decodeName(m_options.historyFile.c_str());
}

} // namespace quillmark::cli
