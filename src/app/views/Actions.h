// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QObject>

#include <memory>
#include <vector>

class QMenuBar;
class QWidget;

namespace quillmark::app {

/// Every command of the window, with its menu and shortcut. The window connects them to what they do.
class Actions : public QObject
{
    Q_OBJECT

public:
    /// The actions belong to the window, so that their shortcuts work there.
    explicit Actions(QWidget &window);

    // Quillmark
    QAction *about = nullptr;
    QAction *checkForUpdates = nullptr;
    QAction *settings = nullptr;
    QAction *quit = nullptr;
    // File
    QAction *inspectAgain = nullptr;
    QAction *exportReport = nullptr;
    QAction *closeWindow = nullptr;
    // Edit
    QAction *copy = nullptr;
    QAction *copyAsText = nullptr;
    QAction *selectAll = nullptr;
    QAction *find = nullptr;
    QAction *deleteSelected = nullptr;
    // View
    QAction *overview = nullptr;
    QAction *history = nullptr;
    QAction *battery = nullptr;
    QAction *monitor = nullptr;
    QAction *previousSection = nullptr;
    QAction *nextSection = nullptr;
    std::vector<QAction *> filters; ///< all, then each status in its order
    QAction *back = nullptr;
    QAction *hideSidebar = nullptr;
    QAction *fullScreen = nullptr;
    // Window
    QAction *minimise = nullptr;
    QAction *zoom = nullptr;
    QAction *bringToFront = nullptr;
    // Help
    QAction *help = nullptr;
    QAction *whatsNew = nullptr;

    /// The menus in their order, for a menu bar or a button.
    const std::vector<QMenu *> &menus() const { return m_menus; }

    /// Sets all titles, in the language of now.
    void retranslate();

Q_SIGNALS:
    /// A menu opens: what can be done now is to be shown.
    void aboutToShow();

private:
    QAction *add(const QList<QKeySequence> &shortcuts = {}, QAction::MenuRole role = QAction::NoRole);
    QMenu *addMenu(const std::vector<QAction *> &actions); ///< a null action: a separator

    QWidget &m_window;
    QActionGroup m_filterGroup;
    QMenu *m_filterMenu = nullptr;
    std::vector<QMenu *> m_menus;
};

} // namespace quillmark::app
