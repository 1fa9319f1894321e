// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/MenuBarLabel.h"

#include <QList>
#include <QObject>

#include <memory>

class QAction;
class QMenu;
class QSystemTrayIcon;

namespace quillmark::app {

class MenuBarMonitorView;

/// The program among the status icons of the desktop, as long as the settings want it and there is such a
/// place: a symbol, and on a Mac a pop-up with live figures. Elsewhere its menu has them, since a pop-up
/// cannot be placed there.
class MenuBar : public QObject
{
    Q_OBJECT

public:
    explicit MenuBar(const AppContext &context, QObject *parent = nullptr);
    ~MenuBar() override;

    /// Whether this desktop has a place for status icons.
    static bool isAvailable();

    /// Whether people can get at the program there.
    bool isShown() const { return m_icon && isAvailable(); }
    const MenuBarLabel &label() const { return m_label; }

Q_SIGNALS:
    void openAsked();
    void settingsAsked();
    void quitAsked();

private:
    void followSettings();
    void show();
    void hide();
    void showLabel();
    void openPopUp();
    void makeMenu();
    void fillMenu();

    const AppContext &m_context;
    MenuBarLabel m_label;
    std::unique_ptr<QMenu> m_menu; ///< where there is no pop-up
    QAction *m_open = nullptr;
    QAction *m_quit = nullptr;
    QList<QAction *> m_rows;                     ///< of the menu
    std::unique_ptr<MenuBarMonitorView> m_popUp; ///< once it has been opened
    std::unique_ptr<QSystemTrayIcon> m_icon;     ///< while it is shown
};

} // namespace quillmark::app
