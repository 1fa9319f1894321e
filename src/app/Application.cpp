// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Application.h"

#include "app/AppContext.h"
#include "app/Appearance.h"
#include "app/SingleInstance.h"
#include "app/dialogs/Dialogs.h"
#include "app/painting.h"
#include "app/views/ContentView.h"
#include "history/ScanHistory.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"
#include "reports/Report.h"
#include "settings/Settings.h"
#include "update/UpdateChecker.h"
#include "update/network/NetworkFeedSource.h"

#include <QApplication>
#include <QClipboard>
#include <QIcon>
#include <QTemporaryDir>

#include <memory>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

class Clipboard final : public inspection::Pasteboard
{
public:
    void clear() override { QApplication::clipboard()->clear(); }
    void setText(const QString &text) override { QApplication::clipboard()->setText(text); }
};

/// The report of an inspection as text, for the clipboard.
inspection::Quillmark::ReportText reportText(const inspection::Quillmark *&inspection,
                                             const language::LanguageManager &language)
{
    return [&](const QList<inspection::CapabilitySection> &sections, const std::optional<QDateTime> &date) {
        return reports::plainText({date, language.language(),
                                   inspection->summary().value_or(inspection::DeviceSummary()), sections});
    };
}

/// Where the scans of this launch are kept.
QString historyFile(const Launch &launch, const QTemporaryDir &passing)
{
    if (!launch.historyFile.isEmpty())
        return launch.historyFile;
    return !launch.recording.isEmpty() ? passing.filePath(u"snapshots.json"_s)
                                       : history::ScanHistory::defaultFile();
}

} // namespace

int run(const Launch &launch, QString &)
{
    settings::Settings::nameApplication();
    QCoreApplication::setApplicationVersion(reports::applicationVersion());
    // The name and the place of the program are of no use here: there are no options for Qt to take.
    static int argumentCount = 1;
    static char name[] = "quillmark";
    static char *arguments[] = {name, nullptr};
    QApplication application(argumentCount, arguments);
    QGuiApplication::setDesktopFileName(u"com.tarnwick.Quillmark"_s);
    application.setWindowIcon(QIcon(u":/quillmark/icons/app-icon.svg"_s));
    application.setQuitOnLastWindowClosed(false);

    SingleInstance instance(launch.recording + u'\n' + launch.historyFile);
    if (!instance.claim())
        return 0;
    watchFocus();
    Appearance::current();

    settings::Settings settings;
    language::LanguageManager language(settings, language::systemLanguages());
    if (!launch.language.isEmpty())
        language.setLanguage(launch.language);
    const QTemporaryDir passing;
    history::ScanHistory history(language, historyFile(launch, passing));
    monitor::LiveMonitor::setSharedMachine(launch.machine);
    Clipboard clipboard;
    const inspection::Quillmark *inspected = nullptr;
    inspection::Quillmark inspection(launch.machine, language, clipboard, reportText(inspected, language));
    inspected = &inspection;

    const AppContext context{launch.machine, settings, language,
                             inspection,     history,  monitor::LiveMonitor::shared()};
    ContentView window(context);
    QObject::connect(&window, &ContentView::closed, &application, &QApplication::quit);
    QObject::connect(&window, &ContentView::quitAsked, &window, &ContentView::close);
    QObject::connect(&instance, &SingleInstance::activated, &window, &ContentView::bringForward);
    const auto followLanguage = [&] { application.setLayoutDirection(language.direction()); };
    QObject::connect(&language, &language::LanguageManager::languageChanged, &window, followLanguage);
    followLanguage();
    const auto version = update::Version::parse(reports::applicationVersion());
    Q_ASSERT(version);
    update::UpdateChecker updates(settings, {update::computerOf(launch.machine), *version},
                                  std::make_unique<update::NetworkFeedSource>());
    new Dialogs(window, context, updates);
    window.restoreWindow();
    window.QWidget::show();
    return application.exec();
}

} // namespace quillmark::app
