// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/commands/options.h"

#include "inspection/DeviceProbe.h"

#include <QFile>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

CLI::Validator isOneOf(const QStringList &names, const std::string &kind)
{
    return CLI::Validator(
        [names, kind](const std::string &given) {
            if (names.contains(QString::fromStdString(given)))
                return std::string();
            return "there is no " + kind + " '" + given +
                   "'; there are: " + names.join(u", "_s).toStdString();
        },
        "");
}

std::string helpFooter(const std::vector<std::string> &examples, const std::string &notes)
{
    auto text = notes.empty() ? std::string() : notes + "\n\n";
    text += "Every command also takes --machine FILE, --history FILE, --language TAG and --no-color: see "
            "'quillmark --help'.\n\nExamples:";
    for (const auto &example : examples)
        text += "\n  quillmark " + example;
    return text;
}

void addSectionOption(CLI::App &command, std::vector<std::string> &sections)
{
    command.add_option("--section", sections, "Only this section (repeatable)")
        ->check(isOneOf(inspection::DeviceProbe::sectionKeys(), "section"))
        ->allow_extra_args(false)
        ->type_name("KEY");
}

std::expected<void, reports::SaveError> OutputFile::save(const Output &output, const QByteArray &bytes) const
{
    if (!isStandardOutput())
        return reports::saveFile(path, bytes,
                                 mayReplace ? reports::Existing::Replace : reports::Existing::Keep);
    output.write(bytes);
    return {};
}

void addOutputOptions(CLI::App &command, OutputFile &file, const std::string &use)
{
    command.add_option("--output", file.path, use)->type_name("FILE")->check([](const std::string &path) {
        return std::string(path.empty() ? "names no file" : "");
    });
    command.add_flag("--force", file.mayReplace, "Replace the file if it exists");
}

QString reasonFor(const reports::SaveError &error)
{
    const auto text = u"%1: %2"_s.arg(QFile::decodeName(error.file.c_str()), reasonText(error));
    return error.reason == reports::SaveError::Reason::Exists ? text + u" (--force replaces it)"_s : text;
}

} // namespace quillmark::cli
