// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace quillmark::app {

/// Paints the rows of a CapabilityListModel, each its part of the card that it stands in, and the headings
/// between the cards.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// The height at the width of the view.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// What does not fit is told by a tool tip.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace quillmark::app
