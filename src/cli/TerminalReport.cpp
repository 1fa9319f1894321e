// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TerminalReport.h"

#include "cli/TextWidth.h"

#include <QCoreApplication>

#include <algorithm>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using inspection::CapabilityItem;
using inspection::CapabilitySection;
using inspection::CapabilityStatus;

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Terminal)
};

constexpr int gap = 2;
constexpr int markWidth = 4;       // two spaces, the mark, a space
constexpr int narrowestValue = 16; // below this the value stands under its label
constexpr int barLength = 24;

// ANSI colours, which each terminal's own palette makes fit its ground.
constexpr auto bold = "1";
constexpr auto faint = "2";

QString mark(CapabilityStatus status)
{
    switch (status) {
    case CapabilityStatus::Supported:
        return u"✓"_s;
    case CapabilityStatus::Unsupported:
        return u"✗"_s;
    case CapabilityStatus::Warning:
        return u"!"_s;
    case CapabilityStatus::Info:
        break;
    }
    return u"·"_s;
}

const char *colorOf(CapabilityStatus status)
{
    switch (status) {
    case CapabilityStatus::Supported:
        return "32";
    case CapabilityStatus::Unsupported:
        return "31";
    case CapabilityStatus::Warning:
        return "33";
    case CapabilityStatus::Info:
        break;
    }
    return faint;
}

/// Widths of the columns, the same in all sections so that the eye can run down the page.
struct Columns
{
    int label = 0;
    int value = 0; ///< 0 when the terminal is too narrow for columns
};

int widestStatus()
{
    int width = 0;
    for (const auto status : inspection::allStatuses)
        width = std::max(width, textWidth(title(status)));
    return width;
}

Columns measure(const QList<CapabilitySection> &sections, int available)
{
    Columns columns;
    for (const auto &section : sections) {
        for (const auto &item : section.items) {
            columns.label = std::max(columns.label, textWidth(printable(item.label)));
            columns.value = std::max(columns.value, textWidth(printable(item.value)));
        }
    }
    if (available > 0) {
        const int room = available - markWidth - columns.label - gap - gap - widestStatus();
        columns.value = room < narrowestValue ? 0 : std::min(columns.value, room);
    }
    return columns;
}

class Layout
{
public:
    Layout(const reports::Report &report, const TerminalStyle &style)
        : m_report(report)
        , m_style(style)
    {}

    QString text()
    {
        addHeadline();
        addScore();
        auto sections = filteredSections(m_report);
        sections.removeIf([](const CapabilitySection &section) { return section.items.isEmpty(); });
        m_columns = measure(sections, m_style.columns);
        for (const auto &section : sections)
            addSection(section);
        if (sections.isEmpty())
            m_text += u'\n' + Text::tr("No rows match.") + u'\n';
        return m_text;
    }

private:
    QString styled(const QString &text, const char *codes) const
    {
        return m_style.color ? u"\x1b[%1m%2\x1b[0m"_s.arg(QLatin1StringView(codes), text) : text;
    }

    void addWrapped(const QString &text, const char *codes = nullptr)
    {
        for (const auto &line : lined(text, m_style.columns))
            m_text += (codes ? styled(line, codes) : line) + u'\n';
    }

    void addHeadline()
    {
        const auto &summary = m_report.summary;
        addWrapped(printable(summary.deviceName), bold);
        addWrapped(printable(
            Text::tr("%1 · %2 memory · %3 storage").arg(summary.chip, summary.memory, summary.storage)));
        addWrapped(printable(u"%1 · %2"_s.arg(summary.osVersion, summary.modelIdentifier)), faint);
    }

    void addScore()
    {
        const auto &sections = m_report.sections;
        const auto rated = inspection::ratedCount(sections);
        if (rated == 0)
            return;
        const auto supported = inspection::count(sections, CapabilityStatus::Supported);
        addBar();
        addWrapped(Text::tr("%1 of %2 rated capabilities supported").arg(supported).arg(rated));
        addCounts();
    }

    /// "Capability score", a bar, the figure.
    void addBar()
    {
        const auto heading = Text::tr("Capability score");
        const auto percent = u"%1%"_s.arg(inspection::scorePercent(m_report.sections));
        int length = barLength;
        if (m_style.columns > 0)
            length =
                std::clamp(m_style.columns - textWidth(heading) - textWidth(percent) - 2 * gap, 0, barLength);
        const int filled = static_cast<int>(inspection::capabilityScore(m_report.sections) * length);
        const QString space(gap, u' ');
        m_text += u'\n' + styled(heading, bold) + space +
                  styled(QString(filled, u'█'), colorOf(CapabilityStatus::Supported)) +
                  styled(QString(length - filled, u'░'), faint) + space + styled(percent, bold) + u'\n';
    }

    void addCounts()
    {
        QStringList plain;
        QStringList counts;
        for (const auto status : inspection::allStatuses) {
            const auto words =
                u" %1 %2"_s.arg(inspection::count(m_report.sections, status)).arg(title(status));
            plain += mark(status) + words;
            counts += styled(mark(status), colorOf(status)) + words;
        }
        const auto space = QString(gap + 1, u' ');
        const bool fits = m_style.columns == 0 || textWidth(plain.join(space)) <= m_style.columns;
        m_text += counts.join(fits ? space : u"\n"_s) + u'\n';
    }

    void addSection(const CapabilitySection &section)
    {
        m_text += u'\n' + styled(section.title, bold) + u'\n';
        for (const auto &item : section.items)
            addRow(item);
    }

    void addRow(const CapabilityItem &item)
    {
        m_text += u"  "_s + styled(mark(item.status), colorOf(item.status)) + u' ';
        if (m_columns.value > 0)
            addAligned(item);
        else
            addStacked(item);
    }

    void addAligned(const CapabilityItem &item)
    {
        const auto lines = lined(printable(item.value), m_columns.value);
        const auto word = statusWord(item);
        m_text += padded(printable(item.label), m_columns.label + gap);
        m_text += word.isEmpty()
                      ? padded(lines.first(), 0)
                      : padded(lines.first(), m_columns.value + gap) + styled(word, colorOf(item.status));
        m_text += u'\n';
        for (const auto &line : lines.mid(1))
            m_text += QString(markWidth + m_columns.label + gap, u' ') + line + u'\n';
    }

    /// On a terminal too narrow for columns: the value under its label.
    void addStacked(const CapabilityItem &item)
    {
        const int width = m_style.columns - markWidth - gap;
        const auto word = statusWord(item);
        auto lines = lined(printable(item.label), width);
        for (const auto &line : lined(printable(item.value), width))
            lines += QString(gap, u' ') + line;
        if (!word.isEmpty())
            lines += QString(gap, u' ') + styled(word, colorOf(item.status));
        m_text += lines.join(u'\n' + QString(markWidth, u' ')) + u'\n';
    }

    /// Empty where the value says it already.
    static QString statusWord(const CapabilityItem &item)
    {
        const auto word = title(item.status);
        return word == item.value ? QString() : word;
    }

    /// The text in lines of that many columns; in one where there is no limit.
    QStringList lined(const QString &text, int columns) const
    {
        return m_style.columns > 0 ? wrapped(text, std::max(columns, 1)) : QStringList{text};
    }

    const reports::Report &m_report;
    const TerminalStyle &m_style;
    Columns m_columns;
    QString m_text;
};

} // namespace

QString terminalReport(const reports::Report &report, const TerminalStyle &style)
{
    return Layout(report, style).text();
}

} // namespace quillmark::cli
