// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/HistoryModel.h"

#include "app/momentTexts.h"
#include "history/ScanHistory.h"
#include "history/historyTexts.h"
#include "language/LanguageManager.h"

#include <algorithm>

namespace quillmark::app {

using history::ScanSnapshot;
using inspection::CapabilityStatus;

namespace {

constexpr qsizetype mostTicked = 2;

} // namespace

ScanGroup scanGroup(QDate day, QDate today)
{
    const auto days = day.daysTo(today);
    if (days == 0)
        return ScanGroup::Today;
    if (days == 1)
        return ScanGroup::Yesterday;
    const bool isThisMonth = day.year() == today.year() && day.month() == today.month();
    // The clock has been set back since: such a day is called by its name.
    return isThisMonth && days > 0 ? ScanGroup::ThisMonth : ScanGroup::Month;
}

HistoryModel::HistoryModel(const AppContext &context, QObject *parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_scans(context.history.snapshots())
    , m_rows(currentRows())
{
    connect(&m_context.history, &history::ScanHistory::snapshotsChanged, this, &HistoryModel::update);
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const auto &row = m_rows[index.row()];
    if (role == HeadingRole)
        return row.scan < 0;
    if (row.scan < 0)
        return role == Qt::DisplayRole ? row.heading : QVariant();

    const auto &scan = m_scans[row.scan];
    switch (role) {
    case Qt::DisplayRole:
        return dateOf(scan);
    case Qt::CheckStateRole:
        return QVariant::fromValue(m_ticked.contains(scan.id) ? Qt::Checked : Qt::Unchecked);
    case Qt::AccessibleTextRole:
        return accessibleText(row.scan);
    case FirstRole:
        return row.isFirst;
    case LastRole:
        return row.isLast;
    case IdRole:
        return scan.id;
    case SystemRole:
        return scan.osVersion;
    case CountsRole:
        return QVariant::fromValue(countsOf(scan));
    case SummaryRole:
        return summaryOf(row.scan);
    case TagRole:
        return tagOf(scan.id);
    default:
        return {};
    }
}

bool HistoryModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto *scan = scanAt(index);
    if (!scan || role != Qt::CheckStateRole)
        return false;
    auto ids = m_ticked;
    ids.removeAll(scan->id);
    if (value.value<Qt::CheckState>() == Qt::Checked)
        ids += scan->id;
    tick(ids.mid(std::max<qsizetype>(0, ids.size() - mostTicked)));
    return true;
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex &index) const
{
    if (!scanAt(index))
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren;
}

QModelIndex HistoryModel::indexOf(const QUuid &id) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (const auto *scan = scanAt(index(row)); scan && scan->id == id)
            return index(row);
    }
    return {};
}

const ScanSnapshot *HistoryModel::scanAt(const QModelIndex &index) const
{
    if (!index.isValid() || m_rows[index.row()].scan < 0)
        return nullptr;
    return &m_scans[m_rows[index.row()].scan];
}

std::optional<std::pair<ScanSnapshot, ScanSnapshot>> HistoryModel::pair() const
{
    if (m_ticked.size() < mostTicked)
        return std::nullopt;
    auto first = indexOf(m_ticked[0]);
    auto second = indexOf(m_ticked[1]);
    if (first.row() < second.row())
        std::swap(first, second);
    return std::pair(*scanAt(first), *scanAt(second));
}

void HistoryModel::tick(const QList<QUuid> &ids)
{
    if (ids == m_ticked)
        return;
    const auto before = std::exchange(m_ticked, ids);
    // The tags of those that stay may be others now.
    for (const auto &id : before + ids) {
        if (const auto changed = indexOf(id); changed.isValid())
            Q_EMIT dataChanged(changed, changed);
    }
    Q_EMIT tickedChanged();
}

void HistoryModel::update()
{
    beginResetModel();
    m_scans = m_context.history.snapshots();
    m_rows = currentRows();
    endResetModel();
    auto left = m_ticked;
    left.removeIf([this](const QUuid &id) { return !indexOf(id).isValid(); });
    tick(left);
}

QList<HistoryModel::Row> HistoryModel::currentRows() const
{
    QList<Row> rows;
    const auto today = QDate::currentDate();
    QString group;
    for (qsizetype scan = 0; scan < m_scans.size(); ++scan) {
        const auto heading = headingOf(m_scans[scan], today);
        const bool isFirst = scan == 0 || heading != group;
        if (isFirst) {
            if (!rows.isEmpty())
                rows.last().isLast = true;
            rows += {.heading = heading};
            group = heading;
        }
        rows += {.scan = scan, .isFirst = isFirst};
    }
    if (!rows.isEmpty())
        rows.last().isLast = true;
    return rows;
}

QString HistoryModel::headingOf(const ScanSnapshot &scan, QDate today) const
{
    const auto moment = scan.date.toLocalTime();
    switch (scanGroup(moment.date(), today)) {
    case ScanGroup::Today:
        return tr("Today");
    case ScanGroup::Yesterday:
        return tr("Yesterday");
    case ScanGroup::ThisMonth:
        return tr("This month");
    case ScanGroup::Month:
        return m_context.language.formats().date(moment, language::DateStyle::Month);
    }
    return {};
}

/// The heading has the year, and the day where it is a near one.
QString HistoryModel::dateOf(const ScanSnapshot &scan) const
{
    const auto &formats = m_context.language.formats();
    const auto moment = scan.date.toLocalTime();
    auto time = timeText(moment, formats);
    const auto group = scanGroup(moment.date(), QDate::currentDate());
    if (group == ScanGroup::Today || group == ScanGroup::Yesterday)
        return time;
    return dayAndTimeText(formats.date(moment, language::DateStyle::Day), time);
}

QString HistoryModel::summaryOf(qsizetype scan) const
{
    if (scan + 1 == m_scans.size())
        return history::firstScan();
    const auto &before = m_scans[scan + 1];
    if (before.modelIdentifier != m_scans[scan].modelIdentifier)
        return m_scans[scan].osVersion.startsWith(u"macOS") ? tr("Other Mac") : tr("Other computer");
    const std::pair ids(before.id, m_scans[scan].id);
    auto counts = m_counts.constFind(ids);
    if (counts == m_counts.cend())
        counts = m_counts.insert(ids, changeCounts(diff(before, m_scans[scan])));
    const auto texts = countTexts(*counts);
    if (texts.isEmpty())
        return history::noDifferences();
    auto text = texts.first();
    for (const auto &next : texts.sliced(1))
        //: Two items of a list: "3 changed, 1 added"
        text = tr("%1, %2").arg(text, next);
    return text;
}

QString HistoryModel::tagOf(const QUuid &id) const
{
    if (m_ticked.size() < mostTicked || !m_ticked.contains(id))
        return {};
    const auto &other = m_ticked[m_ticked[0] == id ? 1 : 0];
    return indexOf(id).row() > indexOf(other).row() ? history::olderText() : history::newerText();
}

QString HistoryModel::accessibleText(qsizetype at) const
{
    const auto &scan = m_scans[at];
    const auto counts = countsOf(scan);
    const auto number = [&](CapabilityStatus status) { return static_cast<int>(counts.of(status)); };
    //: A saved scan for screen readers: date, system, counts of three statuses, what it changed
    return tr("%1, %2, %3, %4, %5, %6")
        .arg(dateOf(scan), scan.osVersion, tr("%n supported", nullptr, number(CapabilityStatus::Supported)),
             tr("%n not supported", nullptr, number(CapabilityStatus::Unsupported)),
             tr("%n warnings", nullptr, number(CapabilityStatus::Warning)), summaryOf(at));
}

} // namespace quillmark::app
