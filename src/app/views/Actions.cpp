// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/Actions.h"

#include "inspection/CapabilityModel.h"

#include <QGuiApplication>
#include <QWidget>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

QKeySequence keys(const char *text)
{
    return QKeySequence(QString::fromLatin1(text));
}

/// Where the systems' customs differ.
QKeySequence keys(const char *onMac, const char *elsewhere)
{
    return keys(QGuiApplication::platformName() == "cocoa"_L1 ? onMac : elsewhere);
}

} // namespace

Actions::Actions(QWidget &window)
    : QObject(&window)
    , m_window(window)
    , m_filterGroup(this)
{
    about = add({}, QAction::AboutRole);
    checkForUpdates = add({}, QAction::ApplicationSpecificRole);
    settings = add({keys("Ctrl+,")}, QAction::PreferencesRole);
    quit = add({keys("Ctrl+Q")}, QAction::QuitRole);
    inspectAgain = add({keys("Ctrl+R"), keys("F5")});
    exportReport = add({keys("Ctrl+E")});
    closeWindow = add({keys("Ctrl+W")});
    copy = add({QKeySequence::Copy});
    copyAsText = add({keys("Ctrl+Shift+C")});
    selectAll = add({QKeySequence::SelectAll});
    find = add({QKeySequence::Find});
    deleteSelected = add({keys("Backspace", "Del")});
    overview = add({keys("Ctrl+1")});
    history = add({keys("Ctrl+2")});
    battery = add({keys("Ctrl+3")});
    monitor = add({keys("Ctrl+4")});
    previousSection = add({keys("Ctrl+Alt+Up")});
    nextSection = add({keys("Ctrl+Alt+Down")});
    for (std::size_t filter = 0; filter <= inspection::allStatuses.size(); ++filter) {
        filters.push_back(add({QKeySequence(u"Ctrl+Alt+%1"_s.arg(filter))}));
        filters.back()->setCheckable(true);
        m_filterGroup.addAction(filters.back());
    }
    back = add({keys("Ctrl+[")});
    hideSidebar = add({keys("Ctrl+Meta+S", "F9")});
    fullScreen = add({keys("Ctrl+Meta+F", "F11")});
    minimise = add({keys("Ctrl+M")});
    zoom = add();
    bringToFront = add();
    help = add({QKeySequence::HelpContents});
    whatsNew = add();

    addMenu({about, checkForUpdates, nullptr, settings, nullptr, quit});
    addMenu({inspectAgain, exportReport, nullptr, closeWindow});
    addMenu({copy, copyAsText, selectAll, nullptr, find, nullptr, deleteSelected});
    auto *view =
        addMenu({overview, history, battery, monitor, nullptr, previousSection, nextSection, nullptr});
    m_filterMenu = view->addMenu(QString());
    for (auto *filter : filters)
        m_filterMenu->addAction(filter);
    view->addSeparator();
    view->addActions({back, hideSidebar, fullScreen});
    addMenu({minimise, zoom, nullptr, bringToFront});
    addMenu({help, whatsNew});
    retranslate();
}

QAction *Actions::add(const QList<QKeySequence> &shortcuts, QAction::MenuRole role)
{
    auto *action = new QAction(&m_window);
    action->setShortcuts(shortcuts);
    action->setMenuRole(role);
    m_window.addAction(action);
    return action;
}

QMenu *Actions::addMenu(const std::vector<QAction *> &actions)
{
    auto *menu = new QMenu(&m_window);
    for (auto *action : actions) {
        if (action)
            menu->addAction(action);
        else
            menu->addSeparator();
    }
    connect(menu, &QMenu::aboutToShow, this, &Actions::aboutToShow);
    m_menus.push_back(menu);
    return menu;
}

void Actions::retranslate()
{
    const QString menuTitles[] = {u"Quillmark"_s, tr("File"),   tr("Edit"),
                                  tr("View"),     tr("Window"), tr("Help")};
    for (std::size_t menu = 0; menu < m_menus.size(); ++menu)
        m_menus[menu]->setTitle(menuTitles[menu]);

    about->setText(tr("About Quillmark"));
    checkForUpdates->setText(tr("Check for Updates…"));
    settings->setText(tr("Settings…"));
    quit->setText(tr("Quit"));
    inspectAgain->setText(tr("Inspect Again"));
    exportReport->setText(tr("Export…"));
    closeWindow->setText(tr("Close Window"));
    copy->setText(tr("Copy"));
    copyAsText->setText(tr("Copy as Text"));
    selectAll->setText(tr("Select All"));
    find->setText(tr("Find…"));
    deleteSelected->setText(tr("Delete"));
    overview->setText(tr("Overview"));
    history->setText(tr("Scan History"));
    battery->setText(tr("Battery Health"));
    monitor->setText(tr("Live Monitor"));
    previousSection->setText(tr("Previous Section"));
    nextSection->setText(tr("Next Section"));
    m_filterMenu->setTitle(tr("Filter"));
    filters[0]->setText(tr("All"));
    for (const auto status : inspection::allStatuses)
        filters[1 + static_cast<std::size_t>(status)]->setText(inspection::title(status));
    back->setText(tr("Back"));
    hideSidebar->setText(tr("Hide Sidebar"));
    fullScreen->setText(tr("Full Screen"));
    minimise->setText(tr("Minimise"));
    zoom->setText(tr("Zoom"));
    bringToFront->setText(tr("Bring All to Front"));
    help->setText(tr("Quillmark Help"));
    whatsNew->setText(tr("What’s New"));
}

} // namespace quillmark::app
