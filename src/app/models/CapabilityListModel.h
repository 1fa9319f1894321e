// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "language/folding.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

#include <optional>

namespace quillmark::app {

/// Which rows of an inspection are wanted. What is absent or empty narrows nothing.
struct CapabilityQuery
{
    QString section; ///< key of the only section; then no headings stand in the list
    QString search;  ///< in labels, values, titles of sections and what else people call the things
    std::optional<inspection::CapabilityStatus> status;

    bool operator==(const CapabilityQuery &) const = default;
};

/// The rows of an inspection that answer a query, in inspection order, each section under a heading.
///
/// A row is the same one as long as section and key are: another inspection or query inserts and removes
/// around it, so that a view keeps its selection.
class CapabilityListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The label, or the section's title, is the display text.
    enum Role {
        HeadingRole = Qt::UserRole, ///< bool
        SymbolRole,                 ///< QString: of a heading
        CountRole,                  ///< int: rows under a heading
        ValueRole,                  ///< QString
        StatusRole,                 ///< int: inspection::CapabilityStatus
        StatusWordRole,   ///< QString: its word where it tells more than mark and value do, else empty
        LabelMatchesRole, ///< QList<language::TextRange>: what the search found
        ValueMatchesRole,
        FirstRole, ///< bool: nothing stands above the row in its card
        LastRole,
    };

    explicit CapabilityListModel(QObject *parent = nullptr);

    void setSections(const QList<inspection::CapabilitySection> &sections);
    void setQuery(const CapabilityQuery &query);
    const CapabilityQuery &query() const { return m_query; }

    /// Of the rows that answer the query, whatever status it asks for.
    const inspection::StatusCounts &counts() const { return m_counts; }
    /// Of the rows that are shown, without headings.
    int shownRows() const { return m_shownRows; }
    int shownSections() const { return m_shownSections; }

    /// "Label: Value", a line for each of the rows, in their order.
    QString text(const QModelIndexList &rows) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        QString id; ///< tells it from all others, in every inspection
        bool isHeading = false;
        QString label;
        QString value;
        inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
        QString symbol;
        int count = 0;
        QList<language::TextRange> labelMatches;
        QList<language::TextRange> valueMatches;

        bool operator==(const Row &) const = default;
    };

    void update();
    void replace(const QList<Row> &rows);
    bool isEdge(int row, int step) const;

    QList<inspection::CapabilitySection> m_sections;
    CapabilityQuery m_query;
    QList<Row> m_rows;
    inspection::StatusCounts m_counts;
    int m_shownRows = 0;
    int m_shownSections = 0;
};

} // namespace quillmark::app

Q_DECLARE_METATYPE(QList<quillmark::language::TextRange>)
