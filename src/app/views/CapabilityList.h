// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/models/CapabilityListModel.h"
#include "app/widgets/CardList.h"

namespace quillmark::app {

/// The rows of an inspection, of which several can be selected and copied.
class CapabilityList : public CardList
{
    Q_OBJECT

public:
    /// `model` outlives the view.
    explicit CapabilityList(CapabilityListModel &model, QWidget *parent = nullptr);

    bool hasSelection() const { return selectionModel()->hasSelection(); }
    /// Puts the selected rows on the clipboard: with their labels, or the values alone.
    void copy();
    void copyValues();

Q_SIGNALS:
    void copied();

protected:
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    CapabilityListModel &m_rows;
};

} // namespace quillmark::app
