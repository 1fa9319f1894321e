// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"
#include "reports/Text.h"

#include <QLocale>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

QString headline(const Report &report)
{
    QString text = Text::tr("Quillmark report") + u'\n';
    if (report.date) {
        const QLocale locale(report.language);
        const auto local = report.date->toLocalTime();
        text += Text::tr("Inspected on %1 at %2")
                    .arg(locale.toString(local.date(), QLocale::LongFormat),
                         locale.toString(local.time(), QLocale::ShortFormat)) +
                u'\n';
    }
    if (const auto score = scoreLine(report); !score.isEmpty())
        text += score + u'\n';
    const auto &summary = report.summary;
    if (!summary.deviceName.isEmpty()) {
        text += u'\n' + singleLine(summary.deviceName) + u'\n';
        text += machineLine(summary) + u'\n';
    }
    return text;
}

/// A plain fact needs no status, and a value that is the status need not be said twice.
QString line(const inspection::CapabilityItem &item)
{
    const auto status = inspection::title(item.status);
    if (item.status == inspection::CapabilityStatus::Info || item.value == status)
        return Text::tr("%1: %2").arg(item.label, item.value);
    return Text::tr("%1: %2 [%3]").arg(item.label, item.value, status);
}

} // namespace

QString plainText(const Report &report)
{
    QString rows;
    for (const auto &section : filteredSections(report)) {
        if (section.items.isEmpty())
            continue;
        rows += u'\n' + section.title + u'\n';
        for (const auto &item : section.items)
            rows += u"  "_s + singleLine(line(item)) + u'\n';
    }
    if (rows.isEmpty() && report.filter)
        rows = u'\n' + nothingMatches() + u'\n';
    if (const auto note = leftOutNote(report); !note.isEmpty())
        rows += u'\n' + note + u'\n';
    return headline(report) + rows;
}

} // namespace quillmark::reports
