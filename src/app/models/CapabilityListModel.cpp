// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/CapabilityListModel.h"

#include "app/models/SearchWords.h"

#include <QSet>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using inspection::CapabilityStatus;
using language::TextRange;

namespace {

/// What a search finds; an empty one lets everything through.
class Search
{
public:
    explicit Search(const QString &text)
        : m_folded(language::folded(text))
    {
        if (!m_folded.isEmpty())
            m_words.emplace();
    }

    QList<TextRange> in(const QString &text) const
    {
        return m_folded.isEmpty() ? QList<TextRange>() : language::foldedMatches(text, m_folded);
    }

    bool means(const QString &sectionKey, const QString &rowKey) const
    {
        return !m_words || m_words->match(sectionKey, rowKey, m_folded);
    }

private:
    QString m_folded;
    std::optional<SearchWords> m_words;
};

} // namespace

CapabilityListModel::CapabilityListModel(QObject *parent)
    : QAbstractListModel(parent)
{}

void CapabilityListModel::setSections(const QList<inspection::CapabilitySection> &sections)
{
    m_sections = sections;
    update();
}

void CapabilityListModel::setQuery(const CapabilityQuery &query)
{
    if (query == m_query)
        return;
    m_query = query;
    update();
}

int CapabilityListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CapabilityListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const auto &row = m_rows[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return row.label;
    case Qt::AccessibleTextRole:
        //: A row for screen readers: "Touch ID, Available, Supported"
        return row.isHeading ? row.label
                             : tr("%1, %2, %3").arg(row.label, row.value, inspection::title(row.status));
    case HeadingRole:
        return row.isHeading;
    case SymbolRole:
        return row.symbol;
    case CountRole:
        return row.count;
    case ValueRole:
        return row.value;
    case StatusRole:
        return static_cast<int>(row.status);
    case StatusWordRole: {
        const auto word = inspection::title(row.status);
        return row.isHeading || row.status == CapabilityStatus::Info || row.value == word ? QString() : word;
    }
    case LabelMatchesRole:
        return QVariant::fromValue(row.labelMatches);
    case ValueMatchesRole:
        return QVariant::fromValue(row.valueMatches);
    case FirstRole:
        return isEdge(index.row(), -1);
    case LastRole:
        return isEdge(index.row(), 1);
    default:
        return {};
    }
}

bool CapabilityListModel::isEdge(int row, int step) const
{
    const int beside = row + step;
    return beside < 0 || beside >= m_rows.size() || m_rows[beside].isHeading;
}

Qt::ItemFlags CapabilityListModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || m_rows[index.row()].isHeading)
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

QString CapabilityListModel::text(const QModelIndexList &rows) const
{
    auto ordered = rows;
    std::ranges::sort(ordered, {}, &QModelIndex::row);
    QStringList lines;
    for (const auto &index : ordered) {
        const auto &row = m_rows[index.row()];
        //: A row as it is copied: "Memory: 16 GB"
        lines += tr("%1: %2").arg(row.label, row.value);
    }
    return lines.join(u'\n');
}

void CapabilityListModel::update()
{
    const Search search(m_query.search);
    QList<Row> rows;
    QSet<QString> ids;
    m_counts = {};
    m_shownRows = 0;
    m_shownSections = 0;
    for (const auto &section : m_sections) {
        const auto sectionKey = section.key.value_or(section.title);
        if (!m_query.section.isEmpty() && sectionKey != m_query.section)
            continue;
        const auto titleMatches = search.in(section.title);
        QList<Row> found;
        for (const auto &item : section.items) {
            const auto key = item.key.value_or(item.label);
            Row row{.label = item.label, .value = item.value, .status = item.status};
            row.labelMatches = search.in(row.label);
            row.valueMatches = search.in(row.value);
            if (titleMatches.isEmpty() && row.labelMatches.isEmpty() && row.valueMatches.isEmpty() &&
                !search.means(sectionKey, key))
                continue;
            m_counts.add(item.status);
            if (m_query.status && item.status != m_query.status)
                continue;
            row.id = sectionKey + u'/' + key;
            while (ids.contains(row.id))
                row.id += u'#';
            ids += row.id;
            found += row;
        }
        if (found.isEmpty())
            continue;
        ++m_shownSections;
        m_shownRows += static_cast<int>(found.size());
        if (m_query.section.isEmpty())
            rows += Row{.id = sectionKey,
                        .isHeading = true,
                        .label = section.title,
                        .symbol = section.symbol,
                        .count = static_cast<int>(found.size()),
                        .labelMatches = titleMatches};
        rows += found;
    }
    replace(rows);
}

/// Rows that stay keep their places among each other, so that what is gone and what is new can go and come in
/// runs.
void CapabilityListModel::replace(const QList<Row> &rows)
{
    if (rows == m_rows)
        return;
    QSet<QString> wanted;
    for (const auto &row : rows)
        wanted += row.id;
    const auto isGone = [&](int row) { return !wanted.contains(m_rows[row].id); };
    for (int last = rowCount() - 1; last >= 0; --last) {
        if (!isGone(last))
            continue;
        int first = last;
        while (first > 0 && isGone(first - 1))
            --first;
        beginRemoveRows({}, first, last);
        m_rows.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
    QSet<QString> kept;
    for (const auto &row : std::as_const(m_rows))
        kept += row.id;
    for (int first = 0; first < rows.size(); ++first) {
        if (kept.contains(rows[first].id)) {
            if (m_rows[first].id != rows[first].id) {
                // They have changed places, which no inspection does to its rows.
                beginResetModel();
                m_rows = rows;
                endResetModel();
                return;
            }
            m_rows[first] = rows[first];
            continue;
        }
        int last = first;
        while (last + 1 < rows.size() && !kept.contains(rows[last + 1].id))
            ++last;
        beginInsertRows({}, first, last);
        for (int row = first; row <= last; ++row)
            m_rows.insert(row, rows[row]);
        endInsertRows();
        first = last;
    }
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

} // namespace quillmark::app
