// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/CapabilityList.h"

#include "app/views/RowDelegate.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>

namespace quillmark::app {

CapabilityList::CapabilityList(CapabilityListModel &model, QWidget *parent)
    : CardList(parent)
    , m_rows(model)
{
    setModel(&model);
    setItemDelegate(new RowDelegate(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // A row may take another height with another text.
    connect(&model, &QAbstractItemModel::dataChanged, this, &CapabilityList::scheduleDelayedItemsLayout);
}

void CapabilityList::copy()
{
    QGuiApplication::clipboard()->setText(m_rows.text(selectionModel()->selectedRows()));
    Q_EMIT copied();
}

void CapabilityList::copyValues()
{
    auto rows = selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QStringList values;
    for (const auto &row : rows)
        values += row.data(CapabilityListModel::ValueRole).toString();
    QGuiApplication::clipboard()->setText(values.join(u'\n'));
    Q_EMIT copied();
}

/// A separator goes and comes with the selection of the row below it.
void CapabilityList::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    CardList::selectionChanged(selected, deselected);
    viewport()->update();
}

void CapabilityList::focusInEvent(QFocusEvent *event)
{
    CardList::focusInEvent(event);
    if (!currentIndex().isValid())
        setCurrentIndex(moveCursor(MoveHome, Qt::NoModifier));
    viewport()->update();
}

void CapabilityList::contextMenuEvent(QContextMenuEvent *event)
{
    if (!hasSelection())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Copy"), this, &CapabilityList::copy);
    menu->addAction(tr("Copy value"), this, &CapabilityList::copyValues);
    const auto place = event->reason() == QContextMenuEvent::Keyboard
                           ? viewport()->mapToGlobal(visualRect(currentIndex()).center())
                           : event->globalPos();
    menu->popup(place);
}

} // namespace quillmark::app
