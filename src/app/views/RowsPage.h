// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/models/CapabilityListModel.h"
#include "app/views/Page.h"

namespace quillmark::app {

class Button;
class CapabilityList;
class EmptyState;
class StatusChips;

/// A page with rows of the inspection below a filter by status.
class RowsPage : public Page
{
    Q_OBJECT

public:
    bool canCopy() const override;
    void copy() override;
    void selectAll() override;
    bool hasStatusFilter() const override { return true; }
    std::optional<inspection::CapabilityStatus> status() const override { return m_rows.query().status; }
    void setStatus(std::optional<inspection::CapabilityStatus> status) override;
    QWidget *firstStop() override;

protected:
    RowsPage(const AppContext &context, QWidget *parent);

    const AppContext &context() const { return m_context; }
    bool isInspected() const;
    const CapabilityListModel &rows() const { return m_rows; }
    CapabilityList *list() const { return m_list; }
    EmptyState *empty() const { return m_empty; }
    /// Shows the rows of this section, or those that the search finds, from now on; all statuses of them
    /// unless `keepsStatus`.
    void showRows(const QString &section, const QString &search, bool keepsStatus = false);
    /// Adds chips, list and empty state to the column.
    void addRows();

    /// Whether the list is wanted now: it may be another part of the page that shows the inspection.
    virtual bool showsList() const { return true; }
    /// The rows, their counts or their texts have changed.
    virtual void rowsChanged() = 0;
    /// Title and text of the page without rows.
    virtual void explainEmptiness();

    void retranslate() override;
    void arrange() override;

    Button *showAllButton() const { return m_showAll; }

private:
    void inspected();
    void update();

    const AppContext &m_context;
    CapabilityListModel m_rows;
    StatusChips *m_chips;
    CapabilityList *m_list;
    EmptyState *m_empty;
    Button *m_showAll;
};

} // namespace quillmark::app
