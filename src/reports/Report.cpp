// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"

#include "language/Formats.h"
#include "reports/Text.h"

namespace quillmark::reports {

namespace {

QString title(PrivateText text)
{
    switch (text) {
    case PrivateText::ComputerName:
        return Text::tr("computer name");
    case PrivateText::Addresses:
        return Text::tr("addresses");
    case PrivateText::VolumeNames:
        return Text::tr("volume names");
    }
    return {};
}

} // namespace

QString applicationVersion()
{
    return QStringLiteral(QUILLMARK_VERSION);
}

QString singleLine(const QString &text)
{
    QString result = text;
    for (QChar &c : result) {
        if (c == u'\n' || c == u'\r' || c == u'\t' || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
        else if (c.category() == QChar::Other_Control)
            c = QChar::ReplacementCharacter;
    }
    return result;
}

QString scoreLine(const Report &report)
{
    const auto rated = inspection::ratedCount(report.sections);
    if (rated == 0)
        return {};
    return Text::tr("Capability score: %1% (%2 of %3 rated capabilities supported)")
        .arg(inspection::scorePercent(report.sections))
        .arg(inspection::count(report.sections, inspection::CapabilityStatus::Supported))
        .arg(rated);
}

QString nothingMatches()
{
    return Text::tr("No rows match.");
}

QString leftOutNote(const Report &report)
{
    if (report.leftOut.isEmpty())
        return {};
    QStringList words;
    for (const auto text : report.leftOut)
        words.append(title(text));
    return Text::tr("Left out of this report: %1.").arg(language::Formats(report.language).list(words));
}

QList<inspection::CapabilitySection> filteredSections(const Report &report)
{
    auto sections = report.sections;
    if (!report.filter)
        return sections;
    for (auto &section : sections)
        section.items.removeIf([&](const auto &item) { return !report.filter(section, item); });
    return sections;
}

} // namespace quillmark::reports
