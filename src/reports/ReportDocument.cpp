// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/ReportDocument.h"

#include "language/Formats.h"
#include "reports/Text.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

using inspection::CapabilityItem;
using inspection::CapabilitySection;
using inspection::CapabilityStatus;

constexpr qsizetype mostAttentionRows = 12;

/// Of a Mac or of another computer, by what the report itself says: it outlives the machine it was read on.
bool isOfMac(const inspection::DeviceSummary &summary)
{
    return summary.osVersion.startsWith("macOS"_L1);
}

/// Keeps the order of a text that the machine gave, whichever direction its surroundings have.
QString isolated(const QString &text, Qt::LayoutDirection surroundings)
{
    const auto runsLeft = [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    };
    if (text.isEmpty() || (surroundings == Qt::LeftToRight && std::ranges::none_of(text, runsLeft)))
        return text;
    return QChar(0x2068) + text + QChar(0x2069);
}

ReportDocument::Row row(const CapabilityItem &item, const QString &place = {})
{
    return {.status = item.status,
            .label = singleLine(item.label),
            .value = singleLine(item.value),
            .place = place,
            .word = inspection::title(item.status)};
}

QList<ReportDocument::Row> rowsOfStatus(const QList<CapabilitySection> &sections, CapabilityStatus status)
{
    QList<ReportDocument::Row> rows;
    for (const auto &section : sections) {
        for (const auto &item : section.items) {
            if (item.status == status)
                rows += row(item, section.title);
        }
    }
    return rows;
}

ReportDocument::Table attention(const QList<CapabilitySection> &sections)
{
    ReportDocument::Table table{.symbol = u"exclamationmark.circle"_s, .title = Text::tr("Worth a look")};
    table.continuedTitle = Text::tr("%1 (continued)").arg(table.title);
    table.rows = rowsOfStatus(sections, CapabilityStatus::Warning) +
                 rowsOfStatus(sections, CapabilityStatus::Unsupported);
    const auto all = table.rows.size();
    table.note = Text::tr("%n rows", nullptr, static_cast<int>(all));
    if (all > mostAttentionRows) {
        table.rows.resize(mostAttentionRows);
        table.more = Text::tr("and %n more", nullptr, static_cast<int>(all - mostAttentionRows));
    }
    return table;
}

/// `all` is the section with the rows that were filtered out too: what is counted does not depend on what is
/// shown.
ReportDocument::Table sectionTable(const CapabilitySection &shown, const CapabilitySection &all,
                                   const language::Formats &formats)
{
    ReportDocument::Table table{.symbol = shown.symbol, .title = singleLine(shown.title)};
    table.continuedTitle = Text::tr("%1 (continued)").arg(table.title);
    if (const auto count = inspection::ratedCount({all}); count > 0) {
        const auto rated = formats.count(count);
        const auto supported = formats.count(inspection::count({all}, CapabilityStatus::Supported));
        table.note = Text::tr("%1 of %2 supported").arg(supported, rated);
        table.shortNote = Text::tr("%1 of %2").arg(supported, rated);
    }
    for (const auto &item : shown.items)
        table.rows += row(item);
    return table;
}

/// Three rows that tell which machine it is beyond its name and parts.
QList<ReportDocument::Fact> facts(const QList<CapabilitySection> &sections)
{
    QList<ReportDocument::Fact> result;
    for (const auto key : {"os"_L1, "modelIdentifier"_L1, "architecture"_L1}) {
        for (const auto &section : sections) {
            const auto item = std::ranges::find_if(
                section.items, [key](const auto &one) { return one.key && *one.key == key; });
            if (section.key == u"system" && item != section.items.end())
                result += {singleLine(item->label), singleLine(item->value)};
        }
    }
    return result;
}

void describeMachine(ReportDocument &document, const Report &report)
{
    const bool ofMac = isOfMac(report.summary);
    document.machine = singleLine(report.summary.deviceName).trimmed();
    document.fileTitle = document.name;
    if (!document.machine.isEmpty())
        //: The title of a report, and the computer’s name.
        document.fileTitle = Text::tr("%1 – %2").arg(document.name, document.machine);
    else
        document.machine = ofMac ? Text::tr("This Mac") : Text::tr("This computer");
    document.question =
        ofMac ? Text::tr("What this Mac can really do") : Text::tr("What this computer can really do");
    document.hardware = hardwareLine(
        report.summary, [&document](const QString &text) { return isolated(text, document.direction); });
    document.madeWith =
        ofMac ? Text::tr("Made with %1 · All data was read on this Mac").arg(document.application)
              : Text::tr("Made with %1 · All data was read on this computer").arg(document.application);
    document.scoreText = ofMac ? Text::tr("Share of rated capabilities that this Mac supports")
                               : Text::tr("Share of rated capabilities that this computer supports");
}

/// Whatever the machine gave. Labels too: some bear the name of a device.
void isolateTexts(ReportDocument &document)
{
    const auto isolate = [&document](QString &text) { text = isolated(text, document.direction); };
    isolate(document.machine);
    for (auto &fact : document.facts)
        isolate(fact.value);
    const auto isolateRows = [&isolate](QList<ReportDocument::Row> &rows) {
        for (auto &row : rows) {
            isolate(row.label);
            isolate(row.value);
        }
    };
    isolateRows(document.attention.rows);
    for (auto &section : document.sections)
        isolateRows(section.rows);
}

void describeScore(ReportDocument &document, const QList<CapabilitySection> &sections)
{
    const language::Formats formats(document.language);
    const bool isRated = inspection::ratedCount(sections) > 0;
    document.score = isRated ? formats.count(inspection::scorePercent(sections)) : u"–"_s;
    document.scoreTitle = Text::tr("Capability score");
    if (!isRated)
        document.scoreText = Text::tr("Nothing is rated");
    for (const auto status : inspection::allStatuses)
        document.counts += {status, inspection::count(sections, status), inspection::title(status)};
}

} // namespace

ReportDocument reportDocument(const Report &report)
{
    ReportDocument document;
    const language::Formats formats(report.language);
    document.language = report.language;
    document.direction = QLocale(report.language).textDirection();
    document.application = u"Quillmark "_s + applicationVersion();
    document.name = Text::tr("Quillmark report");
    if (report.date)
        document.date = formats.dateAndTime(report.date->toLocalTime());
    describeMachine(document, report);
    describeScore(document, report.sections);
    document.facts = facts(report.sections);

    const auto shown = filteredSections(report);
    document.attention = attention(shown);
    document.contentsTitle = Text::tr("In this report");
    document.contentsSymbol = u"list.bullet"_s;
    //: The number of a page, in a list of contents.
    document.contentsPage = Text::tr("p. %1");
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (!shown[i].items.isEmpty())
            document.sections += sectionTable(shown[i], report.sections[i], formats);
    }
    if (document.sections.isEmpty() && report.filter)
        document.nothing = nothingMatches();
    document.leftOut = leftOutNote(report);
    isolateTexts(document);
    document.pageOf = Text::tr("Page %1 of %2");
    document.json = json(report);
    return document;
}

} // namespace quillmark::reports
