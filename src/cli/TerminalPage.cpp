// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/TerminalPage.h"

#include "cli/TextWidth.h"

#include <algorithm>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

using inspection::CapabilityStatus;

constexpr int gap = 2;
constexpr int markWidth = 4;       // two spaces, the mark, a space
constexpr int narrowestValue = 16; // below this the value stands under its label
constexpr int barLength = 24;
constexpr int shortestBar = 8;

// ANSI colours, which each terminal's own palette makes fit its ground.
constexpr auto bold = "1";
constexpr auto faint = "2";

const char *codesOf(TerminalMark::Color color)
{
    switch (color) {
    case TerminalMark::Color::Green:
        return "32";
    case TerminalMark::Color::Red:
        return "31";
    case TerminalMark::Color::Yellow:
        return "33";
    case TerminalMark::Color::Blue:
        return "34";
    case TerminalMark::Color::Faint:
        break;
    }
    return faint;
}

TerminalMark markOf(CapabilityStatus status)
{
    switch (status) {
    case CapabilityStatus::Supported:
        return {u"✓"_s, TerminalMark::Color::Green};
    case CapabilityStatus::Unsupported:
        return {u"✗"_s, TerminalMark::Color::Red};
    case CapabilityStatus::Warning:
        return {u"!"_s, TerminalMark::Color::Yellow};
    case CapabilityStatus::Info:
        break;
    }
    return {u"·"_s, TerminalMark::Color::Faint};
}

/// The columns that stand in a line of that width, and how wide each of them is; all where there is no limit.
struct TableLayout
{
    QList<qsizetype> shown;
    QList<int> widths;
};

TableLayout layOut(const QList<TerminalColumn> &columns, const QList<QStringList> &rows, int room)
{
    TableLayout layout;
    int total = -gap;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        int width = textWidth(columns[i].heading);
        for (const auto &row : rows)
            width = std::max(width, textWidth(row[i]));
        layout.shown += i;
        layout.widths += width;
        total += gap + width;
    }
    const auto rankOf = [&](qsizetype column) { return columns[column].rank; };
    while (room > 0 && total > room) {
        const auto least = std::ranges::max_element(layout.shown, {}, rankOf);
        if (rankOf(*least) == 0)
            break;
        const auto place = least - layout.shown.begin();
        total -= gap + layout.widths[place];
        layout.shown.remove(place);
        layout.widths.remove(place);
    }
    return layout;
}

} // namespace

TerminalMark::TerminalMark(CapabilityStatus status)
    : TerminalMark(markOf(status))
{}

void TerminalPage::addParagraph(const QString &text, Weight weight)
{
    constexpr qsizetype longest = 10'000;
    for (const auto &line : lined(printable(text, longest), m_style.columns)) {
        m_text += weight == Weight::Plain ? line : styled(line, weight == Weight::Bold ? bold : faint);
        m_text += u'\n';
    }
}

void TerminalPage::addBar(const QString &heading, double share, CapabilityStatus status,
                          const QString &figure)
{
    const QString space(gap, u' ');
    const int isolated = m_style.columns - textWidth(figure) - gap; // what the bar has in a line of its own
    const int beside = isolated - textWidth(heading) - gap;
    if (m_style.columns > 0 && beside < shortestBar)
        addParagraph(heading, Weight::Bold);
    else
        m_text += styled(heading, bold) + space;
    if (m_style.columns > 0 && isolated < shortestBar) {
        addParagraph(figure, Weight::Bold);
        return;
    }
    const int room = beside < shortestBar ? isolated : beside;
    const int length = m_style.columns > 0 ? std::min(room, barLength) : barLength;
    const int filled = static_cast<int>(std::clamp(share, 0.0, 1.0) * length);
    m_text += styled(QString(filled, u'█'), codesOf(TerminalMark(status).color)) +
              styled(QString(length - filled, u'░'), faint) + space + styled(figure, bold) + u'\n';
}

void TerminalPage::addMarked(const QList<std::pair<CapabilityStatus, QString>> &texts)
{
    QStringList plain;
    QStringList marked;
    for (const auto &[status, text] : texts) {
        const auto words = u' ' + text;
        const TerminalMark mark(status);
        plain += mark.sign + words;
        marked += styled(mark.sign, codesOf(mark.color)) + words;
    }
    const auto space = QString(gap + 1, u' ');
    const bool fits = m_style.columns == 0 || textWidth(plain.join(space)) <= m_style.columns;
    m_text += marked.join(fits ? space : u"\n"_s) + u'\n';
}

void TerminalPage::addBlocks(const QList<TerminalBlock> &blocks)
{
    const auto columns = measure(blocks);
    for (const auto &block : blocks) {
        addGap();
        if (!block.title.isEmpty())
            m_text += styled(block.title, bold) + u'\n';
        for (const auto &row : block.rows) {
            m_text += u"  "_s + styled(row.mark.sign, codesOf(row.mark.color)) + u' ';
            if (columns.value > 0)
                addAligned(row, columns);
            else
                addStacked(row);
        }
    }
}

void TerminalPage::addTable(const QList<TerminalColumn> &columns, QList<QStringList> rows)
{
    for (auto &row : rows)
        std::ranges::transform(row, row.begin(), [](const QString &text) { return printable(text); });
    const auto layout = layOut(columns, rows, m_style.columns);
    const auto line = [&](auto textOf) {
        QString text;
        for (qsizetype i = 0; i < layout.shown.size(); ++i) {
            const int width = i + 1 < layout.shown.size() ? layout.widths[i] + gap : 0;
            text += padded(textOf(layout.shown[i]), width);
        }
        return text;
    };
    m_text += styled(line([&](qsizetype i) { return columns[i].heading; }), faint) + u'\n';
    for (const auto &row : rows)
        m_text += line([&](qsizetype i) { return row[i]; }) + u'\n';
}

QString TerminalPage::styled(const QString &text, const char *codes) const
{
    return m_style.color ? u"\x1b[%1m%2\x1b[0m"_s.arg(QLatin1StringView(codes), text) : text;
}

/// The text in lines of that many columns; in one where there is no limit.
QStringList TerminalPage::lined(const QString &text, int columns) const
{
    return m_style.columns > 0 ? wrapped(text, std::max(columns, 1)) : QStringList{text};
}

TerminalPage::Columns TerminalPage::measure(const QList<TerminalBlock> &blocks) const
{
    Columns columns;
    int word = 0;
    for (const auto status : inspection::allStatuses)
        word = std::max(word, textWidth(title(status)));
    for (const auto &block : blocks) {
        for (const auto &row : block.rows) {
            columns.label = std::max(columns.label, textWidth(printable(row.label)));
            columns.value = std::max(columns.value, textWidth(printable(row.value)));
            word = std::max(word, textWidth(row.word));
        }
    }
    if (m_style.columns > 0) {
        const int room = m_style.columns - markWidth - columns.label - gap - gap - word;
        columns.value = room < narrowestValue ? 0 : std::min(columns.value, room);
    }
    return columns;
}

void TerminalPage::addAligned(const TerminalRow &row, const Columns &columns)
{
    const auto lines = lined(printable(row.value), columns.value);
    m_text += padded(printable(row.label), columns.label + gap);
    m_text += row.word.isEmpty()
                  ? padded(lines.first(), 0)
                  : padded(lines.first(), columns.value + gap) + styled(row.word, codesOf(row.mark.color));
    m_text += u'\n';
    for (const auto &line : lines.mid(1))
        m_text += QString(markWidth + columns.label + gap, u' ') + line + u'\n';
}

/// On a terminal too narrow for columns: the value under its label.
void TerminalPage::addStacked(const TerminalRow &row)
{
    const int width = m_style.columns - markWidth - gap;
    auto lines = lined(printable(row.label), width);
    for (const auto &line : lined(printable(row.value), width))
        lines += QString(gap, u' ') + line;
    if (!row.word.isEmpty())
        lines += QString(gap, u' ') + styled(row.word, codesOf(row.mark.color));
    m_text += lines.join(u'\n' + QString(markWidth, u' ')) + u'\n';
}

} // namespace quillmark::cli
