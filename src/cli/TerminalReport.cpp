// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TerminalReport.h"

#include "language/texts.h"

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using inspection::CapabilityStatus;

class Text
{
    QUILLMARK_TEXTS(Terminal)
};

void addHeadline(TerminalPage &page, const inspection::DeviceSummary &summary)
{
    page.addParagraph(summary.deviceName, TerminalPage::Weight::Bold);
    page.addParagraph(reports::hardwareLine(summary));
    page.addParagraph(reports::systemFacts(summary).join(u" · "_s), TerminalPage::Weight::Faint);
}

void addScore(TerminalPage &page, const reports::Report &report)
{
    const auto &sections = report.sections;
    const language::Formats formats(report.language);
    const auto rated = inspection::ratedCount(sections);
    if (rated == 0)
        return;
    page.addGap();
    page.addBar(Text::tr("Capability score"), inspection::capabilityScore(sections),
                CapabilityStatus::Supported,
                Text::tr("%1%").arg(formats.count(inspection::scorePercent(sections))));
    page.addParagraph(Text::tr("%1 of %2 rated capabilities supported")
                          .arg(formats.count(inspection::count(sections, CapabilityStatus::Supported)),
                               formats.count(rated)));
    QList<std::pair<CapabilityStatus, QString>> counts;
    for (const auto status : inspection::allStatuses)
        counts.emplace_back(
            status, u"%1 %2"_s.arg(formats.count(inspection::count(sections, status)), title(status)));
    page.addMarked(counts);
}

QList<TerminalBlock> blocksOf(const reports::Report &report)
{
    QList<TerminalBlock> blocks;
    for (const auto &section : filteredSections(report)) {
        if (section.items.isEmpty())
            continue;
        TerminalBlock block{.title = section.title};
        for (const auto &item : section.items) {
            const auto word = title(item.status);
            block.rows.append({item.status, item.label, item.value, word == item.value ? QString() : word});
        }
        blocks += block;
    }
    return blocks;
}

} // namespace

QString terminalReport(const reports::Report &report, const TerminalStyle &style)
{
    TerminalPage page(style);
    addHeadline(page, report.summary);
    addScore(page, report);
    const auto blocks = blocksOf(report);
    page.addBlocks(blocks);
    if (blocks.isEmpty()) {
        page.addGap();
        page.addParagraph(Text::tr("No rows match."));
    }
    return page.text();
}

} // namespace quillmark::cli
