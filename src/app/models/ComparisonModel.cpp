// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/ComparisonModel.h"

#include "app/momentTexts.h"
#include "history/historyTexts.h"

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using history::ChangeKind;
using history::EntryChange;
using history::ScanSnapshot;

namespace {

QString symbolOf(const QString &section, const ScanSnapshot &scan)
{
    const auto found = std::ranges::find(scan.sections, section, &ScanSnapshot::Section::title);
    return found == scan.sections.end() ? QString() : found->symbol;
}

/// Same texts tell nothing apart: their statuses do.
QString valueOf(const EntryChange &change, const std::optional<history::Entry> &side)
{
    const bool isSameText =
        change.older && change.newer && change.older->item.value == change.newer->item.value;
    return valueText(side->item, isSameText);
}

QVariant statusOf(const std::optional<history::Entry> &side)
{
    return side ? QVariant::fromValue(side->item.status) : QVariant();
}

/// "Turned off, Warning"; the value alone where it is the status already.
QString spoken(const history::Entry &side)
{
    const auto status = inspection::title(side.item.status);
    return side.item.value == status ? status
                                     //: A value and its status, for screen readers: "Turned off, Warning"
                                     : ComparisonModel::tr("%1, %2").arg(side.item.value, status);
}

QString accessibleText(const EntryChange &change)
{
    const auto &label = change.shown().item.label;
    switch (change.kind()) {
    case ChangeKind::Changed:
        //: For screen readers: "Changed: Metal 4, from Requires macOS 26, Not supported, to Supported"
        return ComparisonModel::tr("Changed: %1, from %2, to %3")
            .arg(label, spoken(*change.older), spoken(*change.newer));
    case ChangeKind::Added:
        return ComparisonModel::tr("Added: %1, %2").arg(label, spoken(*change.newer));
    case ChangeKind::Removed:
        return ComparisonModel::tr("Removed: %1, %2").arg(label, spoken(*change.older));
    }
    return {};
}

QString lineOf(const EntryChange &change)
{
    const auto &label = change.shown().item.label;
    if (change.kind() == ChangeKind::Changed)
        //: A line of text: label, value before, value now
        return ComparisonModel::tr("%1: %2 → %3")
            .arg(label, valueText(change.older->item, change.isOfStatus()),
                 valueText(change.newer->item, change.isOfStatus()));
    const auto value = valueText(change.shown().item, false);
    return change.kind() == ChangeKind::Added ? ComparisonModel::tr("%1: added, %2").arg(label, value)
                                              : ComparisonModel::tr("%1: removed, %2").arg(label, value);
}

} // namespace

void ComparisonModel::setScans(const ScanSnapshot &older, const ScanSnapshot &newer)
{
    beginResetModel();
    m_older = older;
    m_newer = newer;
    m_changes = entryChanges(older, newer);
    m_counts = changeCounts(diff(older, newer));
    m_rows = rowsOf(m_changes, m_kind);
    endResetModel();
}

void ComparisonModel::setKind(std::optional<ChangeKind> kind)
{
    if (kind == m_kind)
        return;
    beginResetModel();
    m_kind = kind;
    m_rows = rowsOf(m_changes, m_kind);
    endResetModel();
}

QString ComparisonModel::text(const language::Formats &formats) const
{
    const auto side = [&](const QString &word, const ScanSnapshot &scan) {
        //: The head of a comparison: "Older: 12 November 2025, 19:20 · Nora’s Mac · macOS 26.1 · 82%"
        return tr("%1: %2 · %3 · %4 · %5")
            .arg(word,
                 dayAndTimeText(formats.date(scan.date.toLocalTime(), language::DateStyle::DayAndYear),
                                timeText(scan.date.toLocalTime(), formats)),
                 scan.deviceName, scan.osVersion, scoreText(scan));
    };
    QStringList lines = {side(history::olderText(), m_older), side(history::newerText(), m_newer)};
    if (!sameLanguage(m_older, m_newer))
        lines += history::otherLanguageNote();
    if (isEmpty())
        lines += {QString(), history::noDifferences()};
    for (const auto &row : rowsOf(m_changes, std::nullopt)) {
        if (row.change < 0)
            lines += {QString(), row.section};
        else
            lines += u"  "_s + lineOf(m_changes[row.change]);
    }
    return lines.join(u'\n') + u'\n';
}

int ComparisonModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ComparisonModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const auto &row = m_rows[index.row()];
    if (row.change < 0)
        return headingData(row, role);
    const auto &change = m_changes[row.change];
    switch (role) {
    case Qt::DisplayRole:
        return change.shown().item.label;
    case Qt::AccessibleTextRole:
        return accessibleText(change);
    case HeadingRole:
        return false;
    case FirstRole:
        return row.isFirst;
    case LastRole:
        return row.isLast;
    case KindRole:
        return QVariant::fromValue(change.kind());
    case OldValueRole:
        return change.older ? valueOf(change, change.older) : QVariant();
    case NewValueRole:
        return change.newer ? valueOf(change, change.newer) : QVariant();
    case OldStatusRole:
        return statusOf(change.older);
    case NewStatusRole:
        return statusOf(change.newer);
    case TextRole:
        return lineOf(change);
    default:
        return {};
    }
}

QVariant ComparisonModel::headingData(const Row &row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return row.section;
    case HeadingRole:
        return true;
    case SymbolRole: {
        const auto symbol = symbolOf(row.section, m_newer);
        return symbol.isEmpty() ? symbolOf(row.section, m_older) : symbol;
    }
    case CountRole:
        return row.count;
    default:
        return {};
    }
}

Qt::ItemFlags ComparisonModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || m_rows[index.row()].change < 0)
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void ComparisonModel::retranslate()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QList<ComparisonModel::Row> ComparisonModel::rowsOf(const QList<EntryChange> &changes,
                                                    std::optional<ChangeKind> kind)
{
    QList<QList<Row>> groups;
    for (qsizetype change = 0; change < changes.size(); ++change) {
        if (kind && changes[change].kind() != *kind)
            continue;
        const auto &section = changes[change].shown().section;
        auto group = std::ranges::find_if(
            groups, [&](const QList<Row> &rows) { return rows.first().section == section; });
        if (group == groups.end())
            group = groups.insert(groups.end(), {{.section = section}});
        *group += {.change = change, .isFirst = group->size() == 1};
    }
    QList<Row> rows;
    for (auto &group : groups) {
        group.first().count = static_cast<int>(group.size() - 1);
        group.last().isLast = true;
        rows += group;
    }
    return rows;
}

} // namespace quillmark::app
