// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/HistoryPages.h"

#include "cli/TerminalReport.h"
#include "history/SnapshotChange.h"
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

QString scoreOf(const ScanSnapshot &scan)
{
    const auto counts = countsOf(scan);
    return counts.rated() == 0 ? u"–"_s : u"%1%"_s.arg(counts.scorePercent());
}

/// "3 changed · 1 added"; empty when nothing differs.
QString countsText(const history::ChangeCounts &counts)
{
    QStringList texts;
    if (counts.changed > 0)
        texts += Text::tr("%n changed", nullptr, static_cast<int>(counts.changed));
    if (counts.added > 0)
        texts += Text::tr("%n added", nullptr, static_cast<int>(counts.added));
    if (counts.removed > 0)
        texts += Text::tr("%n removed", nullptr, static_cast<int>(counts.removed));
    return texts.join(u" · "_s);
}

/// What the scan brought against the one before it; nullptr: there is none.
QString newsOf(const ScanSnapshot &scan, const ScanSnapshot *before)
{
    if (!before)
        return Text::tr("First scan");
    if (scan.modelIdentifier != before->modelIdentifier)
        return Text::tr("Another computer");
    const auto counts = countsText(changeCounts(diff(*before, scan)));
    return counts.isEmpty() ? Text::tr("No differences") : counts;
}

bool areOfOneDevice(const std::vector<StoredSnapshot> &scans)
{
    return std::ranges::all_of(scans, [&](const StoredSnapshot &scan) {
        return scan.snapshot.deviceName == scans.front().snapshot.deviceName;
    });
}

/// The value, with its status where that is asked for and the value does not say it already.
QString valueText(const ScanSnapshot::Item &item, bool withStatus)
{
    const auto status = title(item.status);
    return withStatus && item.value != status ? u"%1 · %2"_s.arg(item.value, status) : item.value;
}

TerminalRow rowOf(const EntryChange &change)
{
    using Color = TerminalMark::Color;
    if (!change.older)
        return {{u"+"_s, Color::Green},
                change.newer->item.label,
                valueText(change.newer->item, false),
                Text::tr("Added")};
    if (!change.newer)
        return {{u"−"_s, Color::Red},
                change.older->item.label,
                valueText(change.older->item, false),
                Text::tr("Removed")};
    const auto &before = change.older->item;
    const auto &now = change.newer->item;
    const bool withStatus = before.status != now.status;
    return {{u"~"_s, Color::Yellow},
            now.label,
            Text::tr("%1 → %2").arg(valueText(before, withStatus), valueText(now, withStatus)),
            Text::tr("Changed")};
}

/// By section, in the order in which the sections first have a difference.
QList<TerminalBlock> blocksOf(const QList<EntryChange> &changes)
{
    QList<TerminalBlock> blocks;
    for (const auto &change : changes) {
        const auto &section = change.newer ? change.newer->section : change.older->section;
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
        page.addParagraph(Text::tr("No saved scans yet"), Weight::Bold);
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
        row += {scan.osVersion, scoreOf(scan),
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
                           scoreOf(scan)};
    };
    TerminalPage page(style);
    const auto changes = entryChanges(older, newer);
    const auto counts = countsText(changeCounts(diff(older, newer)));
    page.addParagraph(counts.isEmpty() ? Text::tr("No differences") : counts, Weight::Bold);
    page.addBlocks({{.rows = {side(Text::tr("Older"), older), side(Text::tr("Newer"), newer)}}});
    if (!sameLanguage(older, newer)) {
        page.addGap();
        page.addParagraph(
            Text::tr("The two scans are in different languages, so only changes of status are shown."),
            Weight::Faint);
    } else if (changes.isEmpty()) {
        page.addGap();
        page.addParagraph(Text::tr("Both scans show the same capabilities. Values that change all the time, "
                                   "such as uptime, are not compared."));
    }
    page.addBlocks(blocksOf(changes));
    return page.text();
}

} // namespace quillmark::cli
