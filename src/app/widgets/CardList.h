// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>

namespace quillmark::app {

/// A list as tall as all its rows, which scrolls with the page around it. Its delegate draws the cards.
///
/// One stop for the Tab key; the page follows the current row.
class CardList : public QListView
{
    Q_OBJECT

public:
    explicit CardList(QWidget *parent = nullptr);

    void doItemsLayout() override;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showCurrent();

    int m_laidOutFor = -1; ///< width
};

} // namespace quillmark::app
