// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace quillmark::app {

/// Draws the saved scans with their check boxes and delete buttons, in cards under their headings.
class HistoryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

Q_SIGNALS:
    /// Someone pressed the delete button of the row.
    void removalAsked(const QModelIndex &index);

private:
    void paintScan(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
};

} // namespace quillmark::app
