// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/ScanSnapshot.h"

#include <QList>
#include <QString>
#include <QUuid>

#include <optional>
#include <utility>

namespace quillmark::history {

/// One row of a snapshot as the comparison sees it.
struct Entry
{
    QString section; ///< the title of the section that holds it
    ScanSnapshot::Item item;

    bool operator==(const Entry &) const = default;
};

/// The rows that take part in a comparison (all but volatile ones) in their order, each with the text that it
/// is matched by: the section's key or title, "/", the row's key or label, and "#2", "#3", … from the second
/// row on that would have the same.
QList<std::pair<QString, Entry>> entries(const ScanSnapshot &snapshot);

/// One difference between two snapshots.
struct SnapshotChange
{
    QString section; ///< titles and labels are the newer snapshot's, of a removed row the older's
    QString label;
    std::optional<QString> oldValue; ///< absent: the row was added
    std::optional<QString> newValue; ///< absent: the row was removed

    bool operator==(const SnapshotChange &) const = default;
};

/// What differs: added and changed rows in the newer snapshot's order, then removed ones in the older's. A
/// row has changed when its value or its status has; between snapshots in different languages only the status
/// counts, since all values differ there.
QList<SnapshotChange> diff(const ScanSnapshot &older, const ScanSnapshot &newer);

/// Whether values are compared: both snapshots are in the same language, or neither says.
bool sameLanguage(const ScanSnapshot &older, const ScanSnapshot &newer);

enum class ChangeKind { Changed, Added, Removed };

/// A difference with both rows in full, for who shows their statuses.
struct EntryChange
{
    std::optional<Entry> older; ///< absent: the row was added
    std::optional<Entry> newer; ///< absent: the row was removed

    ChangeKind kind() const
    {
        return !older ? ChangeKind::Added : !newer ? ChangeKind::Removed : ChangeKind::Changed;
    }
    /// The row whose section and label the difference goes by.
    const Entry &shown() const { return newer ? *newer : *older; }
    /// Whether the statuses tell the two rows apart.
    bool isOfStatus() const { return older && newer && older->item.status != newer->item.status; }
};

/// The differences of diff(), in its order.
QList<EntryChange> entryChanges(const ScanSnapshot &older, const ScanSnapshot &newer);

/// A difference as a row of a list.
struct ChangeRow
{
    QUuid id = inspection::freshId(); ///< tells rows of the list apart
    QString section;
    QString label;
    std::optional<QString> oldValue;
    std::optional<QString> newValue;
};

QList<ChangeRow> changeRows(const QList<SnapshotChange> &changes);

/// How many rows changed, were added, were removed.
struct ChangeCounts
{
    qsizetype changed = 0;
    qsizetype added = 0;
    qsizetype removed = 0;

    bool operator==(const ChangeCounts &) const = default;
};

ChangeCounts changeCounts(const QList<SnapshotChange> &changes);

} // namespace quillmark::history
