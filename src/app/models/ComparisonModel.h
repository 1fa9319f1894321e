// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/ScanSnapshot.h"
#include "history/SnapshotChange.h"
#include "language/Formats.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

#include <optional>

namespace quillmark::app {

/// What differs between two scans, under the headings of the sections in the order in which they first have a
/// difference.
class ComparisonModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        HeadingRole = Qt::UserRole, ///< bool
        FirstRole,                  ///< bool: of its section
        LastRole,                   ///< bool: of its section
        SymbolRole,                 ///< QString: of a heading
        CountRole,                  ///< int: differences under a heading
        KindRole,                   ///< history::ChangeKind
        OldValueRole,               ///< QString; none: added
        NewValueRole,               ///< QString; none: removed
        OldStatusRole,              ///< inspection::CapabilityStatus; none: added
        NewStatusRole,              ///< inspection::CapabilityStatus; none: removed
        TextRole,                   ///< QString: the difference as a line of text
    };

    using QAbstractListModel::QAbstractListModel;

    void setScans(const history::ScanSnapshot &older, const history::ScanSnapshot &newer);
    const history::ScanSnapshot &older() const { return m_older; }
    const history::ScanSnapshot &newer() const { return m_newer; }

    /// Of all differences, whatever is filtered.
    const history::ChangeCounts &counts() const { return m_counts; }
    bool isEmpty() const { return m_changes.isEmpty(); }

    /// None: all.
    void setKind(std::optional<history::ChangeKind> kind);

    /// The whole comparison as plain text.
    QString text(const language::Formats &formats) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Sets all texts again, in the language of now. Those of the scans stay.
    void retranslate();

private:
    struct Row
    {
        qsizetype change = -1; ///< -1: a heading
        QString section;
        int count = 0;
        bool isFirst = false;
        bool isLast = false;
    };

    static QList<Row> rowsOf(const QList<history::EntryChange> &changes,
                             std::optional<history::ChangeKind> kind);
    QVariant headingData(const Row &row, int role) const;

    history::ScanSnapshot m_older;
    history::ScanSnapshot m_newer;
    QList<history::EntryChange> m_changes;
    history::ChangeCounts m_counts;
    std::optional<history::ChangeKind> m_kind;
    QList<Row> m_rows;
};

} // namespace quillmark::app
