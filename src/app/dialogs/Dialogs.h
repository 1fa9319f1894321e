// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"

#include <QObject>
#include <QPointer>

class QDialog;

namespace quillmark::update {
class UpdateChecker;
}

namespace quillmark::app {

class ContentView;
class ReportExport;
class SettingsDialog;
class UpdateNotices;

/// What the window opens beside itself: the first words, the settings, the questions, and the notices of what
/// came of it all. Each dialog is there once at most.
///
/// Begins when the event loop does. Belongs to the window.
class Dialogs : public QObject
{
    Q_OBJECT

public:
    Dialogs(ContentView &window, const AppContext &context, update::UpdateChecker &updates);

    void showAbout();
    void showLicences();
    void showHelp();
    void showWhatsNew();
    SettingsDialog *showSettings();
    void checkForUpdates();

private:
    void begin();
    void welcome();
    /// Shows the dialog, or brings it forward; makes it where it is not there yet.
    template <typename Dialog, typename Make>
    Dialog *open(QPointer<Dialog> &dialog, const Make &make);
    /// The window that the user is at.
    QWidget *activeWindow() const;

    ContentView &m_window;
    const AppContext &m_context;
    update::UpdateChecker &m_updates;
    UpdateNotices *m_updateNotices;
    ReportExport *m_export;
    QPointer<QDialog> m_about;
    QPointer<QDialog> m_licences;
    QPointer<QDialog> m_help;
    QPointer<QDialog> m_whatsNew;
    QPointer<SettingsDialog> m_settings;
};

} // namespace quillmark::app
