// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"
#include "reports/Text.h"

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

/// The text with everything defused that Markdown, or the HTML within it, would take for its own.
QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : singleLine(text)) {
        if (c == u'&') {
            result += u"&amp;"_s;
        } else if (c == u'<') {
            result += u"&lt;"_s;
        } else {
            if (u"\\`*_{}[]()#+!|~>"_s.contains(c))
                result += u'\\';
            result += c;
        }
    }
    return result;
}

QString row(const QString &label, const QString &value, const QString &status)
{
    return u"| %1 | %2 | %3 |\n"_s.arg(label, value, status);
}

} // namespace

QString markdown(const Report &report)
{
    const auto &summary = report.summary;
    QString text = u"# %1\n\n"_s.arg(escaped(summary.deviceName));
    text += escaped(Text::tr("%1 · %2 memory · %3 storage · %4")
                        .arg(summary.chip, summary.memory, summary.storage, summary.osVersion)) +
            u"\n\n"_s;
    if (const auto score = scoreLine(report); !score.isEmpty())
        text += u"**%1**\n"_s.arg(escaped(score));
    QString tables;
    for (const auto &section : filteredSections(report)) {
        if (section.items.isEmpty())
            continue;
        tables += u"\n## %1\n\n"_s.arg(escaped(section.title));
        tables +=
            row(Text::tr("Capability"), Text::tr("Value"), Text::tr("Status")) + u"| --- | --- | --- |\n"_s;
        for (const auto &item : section.items)
            tables += row(escaped(item.label), escaped(item.value), escaped(inspection::title(item.status)));
    }
    if (tables.isEmpty() && report.filter)
        tables = u'\n' + escaped(nothingMatches()) + u'\n';
    return text + tables;
}

} // namespace quillmark::reports
