// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"

#include "inspection/rows.h"
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

bool isKnown(const QString &text)
{
    return !text.isEmpty() && text != inspection::missing();
}

} // namespace

RowFilter inSections(const QStringList &keys)
{
    if (keys.isEmpty())
        return {};
    return [keys](const inspection::CapabilitySection &section, const inspection::CapabilityItem &) {
        return section.key && keys.contains(*section.key);
    };
}

QString suggestedFileName(const Report &report, const QString &extension)
{
    constexpr qsizetype longestName = 60; // 255 bytes are the most that file systems take for the whole
    auto name = singleLine(report.summary.deviceName).left(longestName);
    for (QChar &c : name) {
        if (QStringLiteral("/\\:*?\"<>|\uFFFD").contains(c))
            c = u'-';
    }
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    const auto day = report.date.value_or(QDateTime::currentDateTimeUtc()).toLocalTime().date();
    QStringList parts = {QStringLiteral("Quillmark"), name.simplified(), day.toString(Qt::ISODate)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" – ")) + u'.' + extension;
}

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
    const language::Formats formats(report.language);
    return Text::tr("Capability score: %1% (%2 of %3 rated capabilities supported)")
        .arg(formats.count(inspection::scorePercent(report.sections)),
             formats.count(inspection::count(report.sections, inspection::CapabilityStatus::Supported)),
             formats.count(rated));
}

QStringList hardwareFacts(const inspection::DeviceSummary &summary,
                          const std::function<QString(const QString &)> &shown)
{
    const auto text = [&shown](const QString &raw) { return shown ? shown(raw) : raw; };
    QStringList parts;
    if (isKnown(summary.chip))
        parts += text(singleLine(summary.chip));
    if (isKnown(summary.memory))
        parts += Text::tr("%1 memory").arg(text(summary.memory));
    if (isKnown(summary.storage))
        parts += Text::tr("%1 storage").arg(text(summary.storage));
    return parts;
}

QStringList systemFacts(const inspection::DeviceSummary &summary)
{
    QStringList parts;
    for (const auto &fact : {summary.osVersion, summary.modelIdentifier}) {
        if (isKnown(fact))
            parts += singleLine(fact);
    }
    return parts;
}

QString hardwareLine(const inspection::DeviceSummary &summary,
                     const std::function<QString(const QString &)> &shown)
{
    return hardwareFacts(summary, shown).join(QStringLiteral(" · "));
}

QString machineLine(const inspection::DeviceSummary &summary)
{
    auto parts = hardwareFacts(summary);
    if (isKnown(summary.osVersion))
        parts += singleLine(summary.osVersion);
    return parts.join(QStringLiteral(" · "));
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
