// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/CardList.h"

#include "app/Appearance.h"

#include <QResizeEvent>
#include <QScrollArea>

#include <algorithm>

namespace quillmark::app {

CardList::CardList(QWidget *parent)
    : QListView(parent)
{
    setFrameShape(QFrame::NoFrame);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); // as high as its rows
    setMouseTracking(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    viewport()->setAutoFillBackground(false);
    connect(&Appearance::current(), &Appearance::changed, this, &CardList::doItemsLayout);
}

void CardList::doItemsLayout()
{
    m_laidOutFor = width();
    QListView::doItemsLayout();
    setFixedHeight(std::max(0, contentsSize().height()));
}

/// All rows are visible as far as the list knows, so that a page of it would be all of it.
QModelIndex CardList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MovePageUp && action != MovePageDown)
        return QListView::moveCursor(action, modifiers);
    const int shown = visibleRegion().boundingRect().height();
    const int way = action == MovePageUp ? -shown : shown;
    const auto from = visualRect(currentIndex()).center();
    auto found = indexAt({from.x(), std::clamp(from.y() + way, 0, height() - 1)});
    while (found.isValid() && !(found.flags() & Qt::ItemIsEnabled))
        found = found.siblingAtRow(found.row() + 1);
    return found;
}

void CardList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (hasFocus())
        showCurrent();
}

void CardList::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        showCurrent();
}

void CardList::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    if (width() != m_laidOutFor)
        doItemsLayout();
}

void CardList::showCurrent()
{
    auto *ancestor = parentWidget();
    while (ancestor && !qobject_cast<QScrollArea *>(ancestor))
        ancestor = ancestor->parentWidget();
    auto *page = qobject_cast<QScrollArea *>(ancestor);
    const auto row = visualRect(currentIndex());
    if (!page || !row.isValid())
        return;
    const auto place = row.translated(mapTo(page->widget(), QPoint()));
    constexpr int around = 24;
    page->ensureVisible(place.left(), place.top(), 0, around);
    page->ensureVisible(place.left(), place.bottom(), 0, around);
}

} // namespace quillmark::app
