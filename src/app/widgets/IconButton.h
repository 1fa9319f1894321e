// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QAbstractButton>
#include <QPointer>

class QAction;
class QMenu;

namespace quillmark::app {

/// A button that is an icon only. Its name, for screen readers and the tool tip, is its text.
class IconButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit IconButton(const QString &symbol, QWidget *parent = nullptr);

    void setSymbol(const QString &symbol);
    void setIconSize(int size); ///< 18 unless said otherwise
    void setRole(design::Role role);

    /// Does what the action does, bears its name and shortcut in the tool tip, and is enabled with it.
    void setAction(QAction *action, const QString &name);
    /// Opens the menu below the button.
    void setMenu(QMenu *menu);
    /// The same for a key: the first entry is ready to be chosen.
    void openMenu();
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void popUpMenu();

    QString m_symbol;
    int m_iconSize = 18;
    design::Role m_role = design::Role::Text2;
    QPointer<QAction> m_action;
    QPointer<QMenu> m_menu;
};

} // namespace quillmark::app
