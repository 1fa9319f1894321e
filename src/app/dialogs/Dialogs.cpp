// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/Dialogs.h"

#include "app/dialogs/AboutDialog.h"
#include "app/dialogs/FirstRunDialog.h"
#include "app/dialogs/ReportExport.h"
#include "app/dialogs/SettingsDialog.h"
#include "app/dialogs/TextDialog.h"
#include "app/dialogs/UpdateNotices.h"
#include "app/dialogs/showInFolder.h"
#include "app/settingKeys.h"
#include "app/views/ContentView.h"
#include "app/widgets/NoticeBar.h"
#include "app/widgets/question.h"
#include "history/ScanHistory.h"

#include <QApplication>
#include <QTimer>

namespace quillmark::app {

Dialogs::Dialogs(ContentView &window, const AppContext &context, update::UpdateChecker &updates)
    : QObject(&window)
    , m_window(window)
    , m_context(context)
    , m_updates(updates)
    , m_updateNotices(new UpdateNotices(updates, context.settings, window.notices(), &window))
    , m_export(new ReportExport(context, window.notices(), &window))
{
    connect(&window, &ContentView::aboutAsked, this, &Dialogs::showAbout);
    connect(window.actions().help, &QAction::triggered, this, &Dialogs::showHelp);
    connect(window.actions().whatsNew, &QAction::triggered, this, &Dialogs::showWhatsNew);
    connect(&window, &ContentView::settingsAsked, this, &Dialogs::showSettings);
    connect(&window, &ContentView::exportAsked, m_export, &ReportExport::begin);
    connect(&window, &ContentView::updateCheckAsked, this, &Dialogs::checkForUpdates);
    QTimer::singleShot(0, this, &Dialogs::begin);
}

void Dialogs::begin()
{
    if (m_context.settings.value(keys::hasStarted))
        m_updateNotices->begin();
    else
        welcome();
}

void Dialogs::welcome()
{
    auto *dialog = new FirstRunDialog(m_context, m_updates, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this] {
        m_context.settings.setValue(keys::hasStarted, true);
        m_updateNotices->begin();
    });
    dialog->open();
}

template <typename Dialog, typename Make>
Dialog *Dialogs::open(QPointer<Dialog> &dialog, const Make &make)
{
    if (!dialog) {
        dialog = make();
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

QWidget *Dialogs::activeWindow() const
{
    auto *active = QApplication::activeWindow();
    const auto *ancestor = active;
    while (ancestor && ancestor != &m_window)
        ancestor = ancestor->parentWidget(); // that of a dialog is another window
    return ancestor ? active : &m_window;
}

void Dialogs::showAbout()
{
    open(m_about, [this] {
        auto *dialog = new AboutDialog(m_context, &m_window);
        connect(dialog, &AboutDialog::licencesAsked, this, &Dialogs::showLicences);
        connect(dialog, &AboutDialog::updateCheckAsked, this, &Dialogs::checkForUpdates);
        return dialog;
    });
}

void Dialogs::showLicences()
{
    open(m_licences, [this] { return new TextDialog(licences, &m_window); });
}

void Dialogs::showHelp()
{
    open(m_help, [this] { return new TextDialog([this] { return help(m_window.actions()); }, &m_window); });
}

void Dialogs::showWhatsNew()
{
    open(m_whatsNew, [this] { return new TextDialog(whatsNew, &m_window); });
}

SettingsDialog *Dialogs::showSettings()
{
    return open(m_settings, [this] {
        auto *dialog = new SettingsDialog(m_context, m_updates, &m_window);
        connect(dialog, &SettingsDialog::historyFolderAsked, this,
                [this] { showInFolder(m_context.history.file()); });
        connect(dialog, &SettingsDialog::clearingAsked, this,
                [this] { m_window.askToClearHistory(activeWindow()); });
        connect(dialog, &SettingsDialog::updateCheckAsked, this, &Dialogs::checkForUpdates);
        return dialog;
    });
}

void Dialogs::checkForUpdates()
{
    m_updateNotices->checkNow(activeWindow());
}

} // namespace quillmark::app
