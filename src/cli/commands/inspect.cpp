// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TerminalReport.h"
#include "cli/commands/Command.h"
#include "cli/commands/options.h"
#include "cli/inspectMachine.h"
#include "inspection/DeviceProbe.h"
#include "language/folding.h"
#include "reports/Report.h"

#include <memory>
#include <string>
#include <vector>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using inspection::CapabilityItem;
using inspection::CapabilitySection;
using inspection::CapabilityStatus;

struct InspectOptions
{
    bool json = false;
    bool text = false;
    bool markdown = false;
    std::vector<std::string> statuses;
    std::vector<std::string> sections;
    std::string search;
};

/// Whether the row is among those asked for; an empty option asks for all.
class RowFilter
{
public:
    explicit RowFilter(const InspectOptions &options)
        : m_search(language::folded(QString::fromStdString(options.search).trimmed()))
    {
        for (const auto &status : options.statuses)
            m_statuses += *inspection::statusFromRawValue(QString::fromStdString(status));
        for (const auto &section : options.sections)
            m_sections += QString::fromStdString(section);
    }

    bool operator()(const CapabilitySection &section, const CapabilityItem &item) const
    {
        return (m_statuses.isEmpty() || m_statuses.contains(item.status)) &&
               (m_sections.isEmpty() || m_sections.contains(section.key.value_or(QString()))) &&
               matches(item);
    }

private:
    bool matches(const CapabilityItem &item) const
    {
        return m_search.isEmpty() || language::folded(item.label).contains(m_search) ||
               language::folded(item.value).contains(m_search);
    }

    QList<CapabilityStatus> m_statuses;
    QStringList m_sections;
    QString m_search;
};

std::expected<void, Failure> inspect(const Session &session, const InspectOptions &options)
{
    const auto machine = session.openMachine();
    if (!machine)
        return std::unexpected(machine.error());
    auto report = inspectMachine(**machine, session.language().formats());
    report.filter = RowFilter(options);
    const auto &output = session.output();
    if (options.json)
        output.write(reports::json(report));
    else if (options.markdown)
        output.write(reports::markdown(report));
    else if (options.text)
        output.write(reports::plainText(report));
    else
        output.write(terminalReport(report, session.terminalStyle()));
    return {};
}

QStringList statusNames()
{
    QStringList names;
    for (const auto status : inspection::allStatuses)
        names += rawValue(status);
    return names;
}

} // namespace

void addInspect(CLI::App &program, Command &chosen)
{
    const auto options = std::make_shared<InspectOptions>();
    auto *command =
        program.add_subcommand("inspect", "Inspect the machine and print every capability with its status");

    command->add_flag("--json", options->json, "Print the report as JSON (report-v1)");
    command->add_flag("--markdown", options->markdown, "Print the report as Markdown");
    command->add_flag("--text", options->text, "Print the report as plain text");

    addSectionOption(*command, options->sections);
    command->add_option("--status", options->statuses, "Only rows with this status (repeatable)")
        ->check(isOneOf(statusNames(), "status"))
        ->allow_extra_args(false)
        ->type_name("STATUS");
    command->add_option("--search", options->search, "Only rows whose label or value contains this text")
        ->type_name("TEXT");
    command->footer(helpFooter({"inspect --status warning --status unsupported",
                                "inspect --json | jq '.sections[].items[] | select(.status == \"warning\")'",
                                "inspect --machine my-machine.json --section graphics"},
                               "Statuses: " + statusNames().join(u", "_s).toStdString() + "\nSections: " +
                                   inspection::DeviceProbe::sectionKeys().join(u", "_s).toStdString()));

    command->callback([options, &chosen] {
        if (options->json + options->markdown + options->text > 1)
            throw CLI::ValidationError("of --json, --markdown and --text only one can be had at a time");
        chosen = [options](const Session &session) { return inspect(session, *options); };
    });
}

} // namespace quillmark::cli
