// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"
#include "reports/Text.h"

#include <QRegularExpression>

namespace quillmark::reports {

using namespace Qt::StringLiterals;

namespace {

/// Issue trackers link mentions ("@ada"), references ("#12", "GH-12") and addresses, and turn ":tada:" into a
/// picture, after Markdown has had its say, so that no escape keeps them from it. A word joiner, which nobody
/// sees, does.
QString withoutReferences(QString text)
{
    const bool mayHaveSome = text.contains(u'@') || text.contains(u'#') || text.contains(u':') ||
                             text.contains(u"gh-"_s, Qt::CaseInsensitive) ||
                             text.contains(u"www."_s, Qt::CaseInsensitive);
    if (!mayHaveSome) // almost always; the expression would take longer than the rest of a report
        return text;
    static const QRegularExpression reference(
        u"([@#](?=\\w)|:(?=[\\w+-]+:)|\\bGH-(?=\\d)|:(?=//)|\\bwww(?=\\.))"_s,
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::CaseInsensitiveOption);
    return text.replace(reference, u"\\1\u2060"_s);
}

/// Where a text that looks like the item of a list has what makes it one: the hyphen or the point after the
/// number.
qsizetype listMark(const QString &text)
{
    if (text.isEmpty() || !(text.front() == u'-' || text.front().isDigit()))
        return -1;
    static const QRegularExpression item(u"^(-|\\d{1,9}\\.)( |$)"_s);
    return item.match(text).capturedLength(1) - 1;
}

/// The text with everything defused that Markdown, extensions of it that are in use, or the HTML within it
/// would take for its own.
QString escaped(const QString &text)
{
    const auto line = withoutReferences(singleLine(text).trimmed());
    const auto mark = listMark(line);
    QString result;
    result.reserve(line.size());
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == u'&') {
            result += u"&amp;"_s;
        } else if (c == u'<') {
            result += u"&lt;"_s;
        } else {
            if (i == mark || u"\\`*_{}[]()#+!|~>$^="_s.contains(c))
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
    const auto &name = report.summary.deviceName;
    QString text = u"# %1\n\n"_s.arg(escaped(name.isEmpty() ? Text::tr("Quillmark report") : name));
    if (const auto machine = machineLine(report.summary); !machine.isEmpty())
        text += escaped(machine) + u"\n\n"_s;
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
    if (const auto note = leftOutNote(report); !note.isEmpty())
        tables += u'\n' + escaped(note) + u'\n';
    return text + tables;
}

} // namespace quillmark::reports
