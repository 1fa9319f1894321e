// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "history/ScanSnapshot.h"
#include "history/SnapshotChange.h"

#include <QAbstractListModel>
#include <QDate>
#include <QHash>
#include <QList>
#include <QUuid>

#include <optional>
#include <utility>

namespace quillmark::app {

/// The group that a scan of that day stands in.
enum class ScanGroup { Today, Yesterday, ThisMonth, Month };
ScanGroup scanGroup(QDate day, QDate today);

/// The saved scans, newest first, under headings of when they were taken. Two at most are ticked, to be
/// compared.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        HeadingRole = Qt::UserRole, ///< bool
        FirstRole,                  ///< bool: of its group
        LastRole,                   ///< bool: of its group
        IdRole,                     ///< QUuid
        SystemRole,                 ///< QString: the version of the system
        CountsRole,                 ///< inspection::StatusCounts
        SummaryRole,                ///< QString: what it changed against the scan before; made when asked for
        TagRole,                    ///< QString: which one of the two that are ticked; empty else
    };

    explicit HistoryModel(const AppContext &context, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Invalid when there is no such scan.
    QModelIndex indexOf(const QUuid &id) const;
    /// nullptr for a heading.
    const history::ScanSnapshot *scanAt(const QModelIndex &index) const;

    /// In the order of ticking.
    const QList<QUuid> &ticked() const { return m_ticked; }
    /// The older and the newer of them, once there are two.
    std::optional<std::pair<history::ScanSnapshot, history::ScanSnapshot>> pair() const;
    void tick(const QList<QUuid> &ids);

    /// Sets all texts again: in the language, and on the day, of now.
    void update();

Q_SIGNALS:
    void tickedChanged();

private:
    struct Row
    {
        qsizetype scan = -1; ///< in the history; -1: a heading
        QString heading;
        bool isFirst = false;
        bool isLast = false;
    };

    QList<Row> currentRows() const;
    QString headingOf(const history::ScanSnapshot &scan, QDate today) const;
    QString dateOf(const history::ScanSnapshot &scan) const;
    QString summaryOf(qsizetype scan) const;
    QString tagOf(const QUuid &id) const;
    QString accessibleText(qsizetype scan) const;

    const AppContext &m_context;
    QList<history::ScanSnapshot> m_scans; ///< as the rows stand for them
    QList<Row> m_rows;
    QList<QUuid> m_ticked;
    /// What differs between two scans, which never change.
    mutable QHash<std::pair<QUuid, QUuid>, history::ChangeCounts> m_counts;
};

} // namespace quillmark::app
