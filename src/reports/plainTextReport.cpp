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
    if (const auto rated = inspection::ratedCount(report.sections); rated > 0) {
        text += Text::tr("Capability score: %1% (%2 of %3 capabilities supported)")
                    .arg(inspection::scorePercent(report.sections))
                    .arg(inspection::count(report.sections, inspection::CapabilityStatus::Supported))
                    .arg(rated) +
                u'\n';
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
    QString text = headline(report);
    for (const auto &section : filteredSections(report)) {
        if (section.items.isEmpty())
            continue;
        text += u'\n' + section.title + u'\n';
        for (const auto &item : section.items)
            text += u"  "_s + singleLine(line(item)) + u'\n';
    }
    return text;
}

} // namespace quillmark::reports
