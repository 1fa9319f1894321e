// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/HistoryPages.h"

#include "cli/TerminalReport.h"
#include "history/historyTexts.h"
#include "language/texts.h"

#include <algorithm>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using history::EntryChange;
using history::ScanSnapshot;
using history::StoredSnapshot;
using Weight = TerminalPage::Weight;

class Text
{
    QUILLMARK_TEXTS(Terminal)
};

/// "3 changed · 1 added"
QString countsText(const history::ChangeCounts &counts)
{
    const auto texts = countTexts(counts);
    return texts.isEmpty() ? history::noDifferences() : texts.join(u" · "_s);
}

/// What the scan brought against the one before it; nullptr: there is none.
QString newsOf(const ScanSnapshot &scan, const ScanSnapshot *before)
{
    if (!before)
        return history::firstScan();
    if (scan.modelIdentifier != before->modelIdentifier)
        return Text::tr("Another computer");
    return countsText(changeCounts(diff(*before, scan)));
}

bool areOfOneDevice(const std::vector<StoredSnapshot> &scans)
{
    return std::ranges::all_of(scans, [&](const StoredSnapshot &scan) {
        return scan.snapshot.deviceName == scans.front().snapshot.deviceName;
    });
}

TerminalMark markOf(history::ChangeKind kind)
{
    using Color = TerminalMark::Color;
    switch (kind) {
    case history::ChangeKind::Changed:
        return {u"~"_s, Color::Yellow};
    case history::ChangeKind::Added:
        return {u"+"_s, Color::Green};
    case history::ChangeKind::Removed:
        return {u"−"_s, Color::Red};
    }
    return {u" "_s, Color::Faint};
}

TerminalRow rowOf(const EntryChange &change)
{
    const bool withStatus = change.isOfStatus();
    const auto value = change.kind() == history::ChangeKind::Changed
                           ? Text::tr("%1 → %2").arg(valueText(change.older->item, withStatus),
                                                     valueText(change.newer->item, withStatus))
                           : valueText(change.shown().item, false);
    return {markOf(change.kind()), change.shown().item.label, value, title(change.kind())};
}

/// By section, in the order in which the sections first have a difference.
QList<TerminalBlock> blocksOf(const QList<EntryChange> &changes)
{
    QList<TerminalBlock> blocks;
    for (const auto &change : changes) {
        const auto &section = change.shown().section;
        auto block = std::ranges::find(blocks, section, &TerminalBlock::title);
        if (block == blocks.end())
            block = blocks.insert(blocks.end(), {.title = section});
        block->rows += rowOf(change);
    }
    return blocks;
}

} // namespace

QString dateOf(const ScanSnapshot &scan, const language::Formats &formats)
{
    return formats.dateAndTime(scan.date.toLocalTime());
}

QString historyPage(const std::vector<StoredSnapshot> &scans, const language::Formats &formats,
                    const TerminalStyle &style)
{
    TerminalPage page(style);
    if (scans.empty()) {
        page.addParagraph(history::noScans(), Weight::Bold);
        page.addParagraph(
            Text::tr("“quillmark history record” inspects this computer and saves the first one."));
        return page.text();
    }
    const bool ofOneDevice = areOfOneDevice(scans);
    //: The heads of a table’s columns, of few characters each: when a scan was made, of which computer, and
    //: so on.
    QList<TerminalColumn> columns = {{u"#"_s}, {Text::tr("ID"), 2}, {Text::tr("Taken")}};
    if (!ofOneDevice)
        columns += {Text::tr("Computer"), 4};
    columns += {{Text::tr("System"), 5}, {Text::tr("Score"), 3}, {Text::tr("Against the scan before"), 1}};

    QList<QStringList> rows;
    for (std::size_t i = 0; i < scans.size(); ++i) {
        const auto &scan = scans[i].snapshot;
        QStringList row = {QString::number(i), history::idText(scan.id).first(8), dateOf(scan, formats)};
        if (!ofOneDevice)
            row += scan.deviceName;
        row += {scan.osVersion, scoreText(scan),
                newsOf(scan, i + 1 < scans.size() ? &scans[i + 1].snapshot : nullptr)};
        rows += row;
    }
    page.addParagraph(Text::tr("%n saved scans", nullptr, static_cast<int>(scans.size())), Weight::Bold);
    page.addGap();
    page.addTable(columns, rows);
    return page.text();
}

QString scanPage(const ScanSnapshot &scan, const language::Formats &formats, const TerminalStyle &style)
{
    TerminalPage page(style);
    page.addParagraph(Text::tr("Scan of %1").arg(dateOf(scan, formats)), Weight::Faint);
    reports::Report report{.date = scan.date,
                           .language = formats.language(),
                           .summary = {.deviceName = scan.deviceName,
                                       .modelIdentifier = scan.modelIdentifier,
                                       .chip = scan.chip,
                                       .osVersion = scan.osVersion},
                           .sections = inspectedSections(scan)};
    return page.text() + terminalReport(report, style);
}

QString comparisonPage(const ScanSnapshot &older, const ScanSnapshot &newer, const language::Formats &formats,
                       const TerminalStyle &style)
{
    const TerminalMark mark(u" "_s, TerminalMark::Color::Faint);
    const auto side = [&](const QString &label, const ScanSnapshot &scan) {
        return TerminalRow{mark, label,
                           u"%1 · %2 · %3"_s.arg(dateOf(scan, formats), scan.deviceName, scan.osVersion),
                           scoreText(scan)};
    };
    TerminalPage page(style);
    const auto changes = entryChanges(older, newer);
    page.addParagraph(countsText(changeCounts(diff(older, newer))), Weight::Bold);
    page.addBlocks({{.rows = {side(history::olderText(), older), side(history::newerText(), newer)}}});
    if (!sameLanguage(older, newer)) {
        page.addGap();
        page.addParagraph(history::otherLanguageNote(), Weight::Faint);
    } else if (changes.isEmpty()) {
        page.addGap();
        page.addParagraph(history::noDifferencesNote());
    }
    page.addBlocks(blocksOf(changes));
    return page.text();
}

} // namespace quillmark::cli
