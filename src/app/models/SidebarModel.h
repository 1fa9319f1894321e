// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace quillmark::app {

/// What the sidebar lists: the overview, the sections of the inspection, the tools. Headings stand among them
/// and cannot be chosen.
class SidebarModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        PlaceRole = Qt::UserRole, ///< QString; empty for a heading
        SymbolRole,               ///< QString
        WarningsRole,             ///< int: rows of the section with a warning
        HeadingRole,              ///< bool
    };

    explicit SidebarModel(const AppContext &context, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Invalid when there is no such place.
    QModelIndex indexOf(const QString &place) const;

    /// Sets all titles again, in the language of now.
    void retranslate();

private:
    struct Row
    {
        QString place; ///< empty: a heading
        QString title;
        QString symbol;
        qsizetype warnings = 0;

        bool operator==(const Row &) const = default;
    };

    QList<Row> currentRows() const;
    void update();

    const AppContext &m_context;
    QList<Row> m_rows;
};

} // namespace quillmark::app
