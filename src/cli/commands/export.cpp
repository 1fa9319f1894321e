// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/PdfModule.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "cli/inspectMachine.h"
#include "inspection/DeviceProbe.h"
#include "reports/Report.h"

#include <QFileInfo>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

enum class Format { Text, Markdown, Json, Pdf };

struct FormatNames
{
    Format format;
    QString name;
    QStringList extensions;
};

const std::array<FormatNames, 4> &formats()
{
    static const std::array<FormatNames, 4> all = {
        {{Format::Text, u"text"_s, {u"txt"_s, u"text"_s}},
         {Format::Markdown, u"markdown"_s, {u"md"_s, u"markdown"_s}},
         {Format::Json, u"json"_s, {u"json"_s}},
         {Format::Pdf, u"pdf"_s, {u"pdf"_s}}}};
    return all;
}

QStringList formatNames()
{
    QStringList names;
    for (const auto &format : formats())
        names += format.name;
    return names;
}

struct ExportOptions
{
    std::string format; ///< empty: as the file's name tells
    OutputFile output;
    bool withNames = false;
    std::vector<std::string> sections;
};

/// Ends the command line where the options do not tell.
Format formatOf(const ExportOptions &options)
{
    const auto name = QString::fromStdString(options.format);
    const auto extension = QFileInfo(QString::fromStdString(options.output.path)).suffix().toLower();
    for (const auto &format : formats()) {
        if (name.isEmpty() ? format.extensions.contains(extension) : format.name == name)
            return format.format;
    }
    throw CLI::ValidationError("--format is missing, and the name of the file does not tell it; there are: " +
                               formatNames().join(u", "_s).toStdString());
}

std::expected<QByteArray, Failure> write(const reports::Report &report, Format format)
{
    switch (format) {
    case Format::Text:
        return reports::plainText(report).toUtf8();
    case Format::Markdown:
        return reports::markdown(report).toUtf8();
    case Format::Json:
        return reports::json(report);
    case Format::Pdf:
        break;
    }
    return pdfReport(report);
}

reports::RowFilter chosenSections(const ExportOptions &options)
{
    QStringList keys;
    for (const auto &key : options.sections)
        keys += QString::fromStdString(key);
    return reports::inSections(keys);
}

std::expected<void, Failure> exportReport(const Session &session, const ExportOptions &options, Format format)
{
    if (format == Format::Pdf && options.output.isStandardOutput() && session.output().isTerminal)
        return std::unexpected(
            Failure{u"a PDF document is nothing for a terminal: name a file with --output"_s});
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    auto report = inspectMachine(**machine, session.language().formats());
    if (!options.withNames)
        report = withoutPrivateTexts(std::move(report));
    report.filter = chosenSections(options);
    const auto document = write(report, format);
    if (!document)
        return std::unexpected(document.error());
    if (const auto saved = options.output.save(session.output(), *document); !saved)
        return std::unexpected(Failure{title(saved.error()) + u' ' + reasonFor(saved.error())});
    return {};
}

} // namespace

void addExport(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<ExportOptions>();
    auto *command = program.add_subcommand("export", "Inspect the machine and write the report to a file");
    command
        ->add_option("--format", options->format,
                     "text, markdown, json or pdf; else as the file's name tells")
        ->check(isOneOf(formatNames(), "format"))
        ->type_name("FORMAT");
    addOutputOptions(*command, options->output, "The file to write (required); - is standard output");
    command->add_flag("--with-names", options->withNames,
                      "Keep the computer's name, volume names and addresses, which are left out otherwise");
    addSectionOption(*command, options->sections);
    command->footer(
        helpFooter({"export --output report.pdf", "export --format markdown --output - --section graphics",
                    "export --output report.json --with-names --force"},
                   "Sections: " + inspection::DeviceProbe::sectionKeys().join(u", "_s).toStdString()));
    command->callback([options, &chosen] {
        if (options->output.path.empty())
            throw CLI::ValidationError(
                "--output is missing: it names the file to write; - is standard output");
        const auto format = formatOf(*options);
        chosen = [options, format](const Session &session) {
            return exportReport(session, *options, format);
        };
    });
}

} // namespace quillmark::cli
