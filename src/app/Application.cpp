// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Application.h"

#include "app/AppContext.h"
#include "app/Appearance.h"
#include "app/MenuBar.h"
#include "app/QuitSignals.h"
#include "app/SingleInstance.h"
#include "app/dialogs/Dialogs.h"
#include "app/painting.h"
#include "app/settingKeys.h"
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

#include <cstdio>
#include <cstdlib>
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

/// Where the scans of this launch are kept.
QString historyFile(const Launch &launch, const QTemporaryDir &passing)
{
    if (!launch.historyFile.isEmpty())
        return launch.historyFile;
    return !launch.recording.isEmpty() ? passing.filePath(u"snapshots.json"_s)
                                       : history::ScanHistory::defaultFile();
}

/// Where no window can be opened, Qt writes a page about plugins and ends the process by a signal.
void endInOneLine(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg)
        return;
    auto reason = message.section(u'\n', 0, 0);
#ifndef Q_OS_MACOS
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        reason = u"there is no display"_s;
#endif
    std::fprintf(stderr, "quillmark: no window can be opened: %s\n", qPrintable(reason));
    std::_Exit(1);
}

std::unique_ptr<QApplication> startApplication()
{
    settings::Settings::nameApplication();
    QCoreApplication::setApplicationVersion(reports::applicationVersion());
    // There are no options for Qt to take.
    static char name[] = "quillmark";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    const auto handler = qInstallMessageHandler(endInOneLine);
    auto application = std::make_unique<QApplication>(count, arguments);
    qInstallMessageHandler(handler);
    QGuiApplication::setDesktopFileName(u"com.tarnwick.Quillmark"_s);
    QApplication::setWindowIcon(QIcon(u":/quillmark/icons/app-icon.svg"_s));
    QApplication::setQuitOnLastWindowClosed(false);
    watchFocus();
    Appearance::current();
    return application;
}

update::UpdateChecker::Surroundings surroundings(const platform::Machine &machine)
{
    return {.computer = update::computerOf(machine),
            .running = *update::Version::parse(reports::applicationVersion())};
}

} // namespace

int run(const Launch &launch, QString &)
{
    const auto application = startApplication();
    SingleInstance instance(launch.recording + u'\n' + launch.historyFile);
    if (!instance.claim())
        return 0;

    settings::Settings settings;
    language::LanguageManager language(settings, language::systemLanguages());
    if (!launch.language.isEmpty())
        language.setLanguage(launch.language);
    const auto followLanguage = [&] { QApplication::setLayoutDirection(language.direction()); };
    QObject::connect(&language, &language::LanguageManager::languageChanged, application.get(),
                     followLanguage);
    followLanguage();

    const QTemporaryDir passing;
    history::ScanHistory history(language, historyFile(launch, passing));
    monitor::LiveMonitor::setSharedMachine(launch.machine);
    Clipboard clipboard;
    inspection::Quillmark inspection(
        launch.machine, language, clipboard,
        [&](const QList<inspection::CapabilitySection> &sections, const std::optional<QDateTime> &date) {
            const auto summary = inspection.summary().value_or(inspection::DeviceSummary());
            return reports::plainText({date, language.language(), summary, sections});
        });
    update::UpdateChecker updates(settings, surroundings(launch.machine),
                                  std::make_unique<update::NetworkFeedSource>());

    const AppContext context{launch.machine, settings, language,
                             inspection,     history,  monitor::LiveMonitor::shared()};
    ContentView window(context);
    new Dialogs(window, context, updates); // belongs to the window
    const auto quit = [&] {
        window.close(); // where it was is kept
        QApplication::quit();
    };
    QObject::connect(&window, &ContentView::quitAsked, &window, quit);
    const QuitSignals quitSignals;
    QObject::connect(&quitSignals, &QuitSignals::quitAsked, &window, quit);
    MenuBar menuBar(context);
    QObject::connect(&menuBar, &MenuBar::openAsked, &window, &ContentView::bringForward);
    QObject::connect(&menuBar, &MenuBar::settingsAsked, &window, &ContentView::settingsAsked);
    QObject::connect(&menuBar, &MenuBar::quitAsked, &window, quit);
    QObject::connect(&window, &ContentView::closed, &window, [&] {
        if (!settings.value(keys::keepsRunning) || !menuBar.isShown())
            QApplication::quit();
    });
    QObject::connect(&instance, &SingleInstance::activated, &window, &ContentView::bringForward);
    window.restoreWindow();
    window.QWidget::show();
    return QApplication::exec();
}

} // namespace quillmark::app
