// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/Dialogs.h"

#include "app/DesktopChoices.h"
#include "app/dialogs/AboutDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/FirstRunDialog.h"
#include "app/dialogs/SettingsDialog.h"
#include "app/dialogs/TextDialog.h"
#include "app/settingKeys.h"
#include "app/views/ContentView.h"
#include "app/widgets/NoticeBar.h"
#include "support/AppStage.h"
#include "support/offscreen.h"
#include "update/UpdateChecker.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QJsonDocument>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include <algorithm>

using namespace quillmark;
using namespace quillmark::app;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

/// Answers every question with the same feed, and counts them.
class TestSource final : public update::FeedSource
{
public:
    TestSource(int &questions, const QByteArray &feed)
        : m_questions(questions)
        , m_feed(feed)
    {}

    void fetch(const update::FeedQuestion &, const Done &done) override
    {
        ++m_questions;
        update::FetchOutcome outcome;
        if (m_feed.isEmpty())
            outcome.answer = std::unexpected(update::FetchError{});
        else
            outcome.answer = update::FeedAnswer{.body = m_feed};
        QMetaObject::invokeMethod(
            qApp, [done, outcome] { done(outcome); }, Qt::QueuedConnection);
    }
    void cancel() override {}

private:
    int &m_questions;
    QByteArray m_feed;
};

QByteArray feedWith(const QByteArray &version)
{
    return "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
           "<channel><item><sparkle:version>" +
           version +
           "</sparkle:version><link>https://example.com/get</link><description>News</description>"
           "<enclosure url=\"https://example.com/f\" sparkle:os=\"linux\"/></item></channel></rss>";
}

/// The window with its dialogs, on a machine of which nothing is known but what it is.
struct Desk
{
    explicit Desk(const QByteArray &feed = {}, bool hasStarted = true)
        : stage(recordingText(u"macbook-pro-m3-max"_s))
        , updates(stage.settings,
                  {{u"linux"_s, {}, {}}, *update::Version::parse(u"1.0"), stage.folder.path()},
                  std::make_unique<TestSource>(questions, feed))
        , window(stage.context)
        , dialogs(*new Dialogs(window, stage.context, updates))
    {
        stage.settings.setValue(keys::hasStarted, hasStarted);
        stage.inspect();
        window.QWidget::show();
        QCoreApplication::processEvents();
    }

    QString notice() const
    {
        return window.notices().isShown() ? window.notices().accessibleName() : QString();
    }

    AppStage stage;
    int questions = 0;
    update::UpdateChecker updates;
    mutable ContentView window;
    Dialogs &dialogs;
};

template <typename Widget>
Widget *shown()
{
    for (auto *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Widget *>(widget); found && found->isVisible())
            return found;
    }
    return nullptr;
}

QAbstractButton *button(const QWidget *parent, const QString &text)
{
    for (auto *found : parent->findChildren<QAbstractButton *>()) {
        if (found->text() == text && !found->isHidden())
            return found;
    }
    return nullptr;
}

/// The names of what can be reached by Tab and has none.
QStringList nameless(const QWidget &window)
{
    QStringList found;
    for (auto *widget : window.findChildren<QWidget *>()) {
        const auto *clickable = qobject_cast<QAbstractButton *>(widget);
        const bool isStop = widget->isVisible() && widget->focusPolicy() & Qt::TabFocus;
        if (isStop && widget->accessibleName().isEmpty() && !(clickable && !clickable->text().isEmpty()))
            found += QString::fromLatin1(widget->metaObject()->className());
    }
    return found;
}

} // namespace

class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnWarnings(); }

    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void onlyGetStartedAgreesToUpdates_data()
    {
        QTest::addColumn<bool>("getsStarted");
        QTest::addColumn<bool>("isTicked");
        QTest::addColumn<update::UpdateChecker::Consent>("consent");
        using enum update::UpdateChecker::Consent;
        QTest::newRow("as offered") << true << true << Given;
        QTest::newRow("without the tick") << true << false << Refused;
        QTest::newRow("closed by Esc") << false << true << NotAsked;
    }

    void onlyGetStartedAgreesToUpdates()
    {
        QFETCH(bool, getsStarted);
        QFETCH(bool, isTicked);
        QFETCH(update::UpdateChecker::Consent, consent);
        Desk desk({}, false);
        QTRY_VERIFY(shown<FirstRunDialog>());
        auto *dialog = shown<FirstRunDialog>();
        const auto labels = dialog->findChildren<QLabel *>();
        QVERIFY(std::ranges::any_of(labels, [&](const QLabel *label) {
            return label->isVisible() && label->text().contains(desk.updates.host());
        }));
        dialog->findChild<QCheckBox *>()->setChecked(isTicked);
        if (getsStarted)
            QTest::keyClick(dialog, Qt::Key_Return);
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(!shown<FirstRunDialog>());
        QCOMPARE(desk.updates.consent(), consent);
        QCOMPARE(desk.questions, consent == update::UpdateChecker::Consent::Given ? 1 : 0);
        QVERIFY(desk.stage.settings.value(keys::hasStarted));
    }

    void nothingIsAskedBeforeTheUserAgrees()
    {
        Desk desk(feedWith("1.0"));
        desk.dialogs.checkForUpdates();
        auto *box = desk.window.findChild<QMessageBox *>();
        QVERIFY(box);
        QVERIFY2(box->text().contains(desk.updates.host()), qPrintable(box->text()));
        QTest::keyClick(box, Qt::Key_Return); // the safe answer
        QTRY_VERIFY(!desk.window.findChild<QMessageBox *>());
        QCOMPARE(desk.questions, 0);

        desk.dialogs.checkForUpdates();
        button(desk.window.findChild<QMessageBox *>(), u"Ask this once"_s)->click();
        QTRY_COMPARE(desk.questions, 1);
        QVERIFY(!desk.updates.hasConsent());
        QTRY_VERIFY(desk.notice().contains(u"is up to date."_s));
    }

    void failuresAreToldOnlyToWhoAsked()
    {
        Desk desk;
        desk.updates.setConsent(true);
        QSignalSpy finished(&desk.updates, &update::UpdateChecker::finished);
        desk.updates.checkIfDue();
        QVERIFY(finished.wait());
        QCOMPARE(desk.notice(), QString());
        desk.dialogs.checkForUpdates();
        QVERIFY(finished.wait());
        QVERIFY2(desk.notice().startsWith(u"Couldn’t check for updates."_s), qPrintable(desk.notice()));
    }

    void closedOfferIsSilentForThatVersion()
    {
        Desk desk(feedWith("2.0"));
        desk.updates.setConsent(true);
        QSignalSpy finished(&desk.updates, &update::UpdateChecker::finished);
        desk.updates.checkIfDue();
        QVERIFY(finished.wait());
        QVERIFY2(desk.notice().startsWith(u"Quillmark 2.0 is available."_s), qPrintable(desk.notice()));
        desk.window.notices().dismiss();

        desk.stage.settings.remove(update::lastCheckedKey); // the next day
        desk.updates.checkIfDue();
        QVERIFY(finished.wait());
        QCOMPARE(desk.notice(), QString());
        desk.dialogs.checkForUpdates(); // who asks is told
        QVERIFY(finished.wait());
        QVERIFY(desk.notice().startsWith(u"Quillmark 2.0 is available."_s));
    }

    void settingsApplyAtOnce()
    {
        Desk desk;
        auto &settings = desk.stage.settings;
        auto *dialog = desk.dialogs.showSettings();
        button(dialog, u"Show the overview"_s)->click();
        QCOMPARE(settings.value(keys::opensAt), u"overview"_s);
        settings.setValue(keys::opensAt, keys::opensAtLast); // by another window
        QVERIFY(button(dialog, u"Show the screen I used last"_s)->isChecked());

        dialog->showPane(SettingsDialog::Pane::Language);
        auto *languages = dialog->findChild<QComboBox *>();
        QVERIFY(languages->isVisible());
        languages->setCurrentIndex(languages->findData(u"de"_s));
        Q_EMIT languages->activated(languages->currentIndex());
        QCOMPARE(settings.value(language::languageKey), u"de"_s);
        languages->setCurrentIndex(0);
        Q_EMIT languages->activated(0);
        QVERIFY(!settings.contains(language::languageKey));

        dialog->showPane(SettingsDialog::Pane::Updates);
        QVERIFY(!desk.updates.hasConsent());
        button(dialog, u"Check for updates automatically"_s)->click();
        QVERIFY(desk.updates.hasConsent());
    }

    void asksInFrontOfTheDialogThatOneIsAt()
    {
        Desk desk;
        auto *settings = desk.dialogs.showSettings();
        const auto asksThere = [&](SettingsDialog::Pane pane, const QString &text) {
            settings->activateWindow();
            if (!QTest::qWaitFor([&] { return settings->isActiveWindow(); }))
                return false;
            settings->showPane(pane);
            button(settings, text)->click();
            auto *box = desk.window.findChild<QMessageBox *>();
            if (!box || box->parentWidget()->window() != settings)
                return false;
            QTest::keyClick(box, Qt::Key_Return); // the safe answer
            return QTest::qWaitFor([&] { return !desk.window.findChild<QMessageBox *>(); });
        };
        QVERIFY(asksThere(SettingsDialog::Pane::General, u"Clear history…"_s));
        QCOMPARE(desk.stage.history.snapshots().size(), 1);
        QVERIFY(asksThere(SettingsDialog::Pane::Updates, u"Check now"_s));
        QCOMPARE(desk.questions, 0);
    }

    void everyStopHasAName()
    {
        Desk desk;
        auto *settings = desk.dialogs.showSettings();
        for (int pane = 0; pane < 4; ++pane) {
            settings->showPane(static_cast<SettingsDialog::Pane>(pane));
            QCOMPARE(nameless(*settings), QStringList());
        }
        desk.dialogs.showAbout();
        QCOMPARE(nameless(*desk.window.findChild<AboutDialog *>()), QStringList());
        desk.dialogs.showLicences();
        auto *licences = desk.window.findChild<TextDialog *>();
        QCOMPARE(nameless(*licences), QStringList());
        QVERIFY(licences->findChild<QTextEdit *>()->toPlainText().contains(u"CLI11"_s));
    }

    void exportsWhatWasChosen()
    {
        Desk desk;
        desk.window.actions().exportReport->trigger();
        auto *dialog = desk.window.findChild<ExportDialog *>();
        QVERIFY(dialog);
        QCOMPARE(nameless(*dialog), QStringList());
        button(dialog, u"JSON"_s)->click();
        button(dialog, u"Export…"_s)->click();
        QTRY_VERIFY(desk.window.findChild<QFileDialog *>());
        QCOMPARE(desk.stage.settings.value(keys::exportFormat), u"json"_s);
        auto *panel = desk.window.findChild<QFileDialog *>();
        const auto file = desk.stage.folder.filePath(u"report.json"_s);
        Q_EMIT panel->fileSelected(file);
        panel->close();
        QTRY_COMPARE(desk.notice(), u"Report saved."_s);
        QFile saved(file);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(QJsonDocument::fromJson(saved.readAll())[u"schema"].toString(), u"report-v1"_s);
    }

    void failedExportSaysWhyAndOffersAnotherPlace()
    {
        Desk desk;
        desk.window.actions().exportReport->trigger();
        button(desk.window.findChild<ExportDialog *>(), u"Export…"_s)->click();
        QTRY_VERIFY(desk.window.findChild<QFileDialog *>());
        auto *panel = desk.window.findChild<QFileDialog *>();
        Q_EMIT panel->fileSelected(desk.stage.folder.filePath(u"no such folder/report.pdf"_s));
        panel->close();
        QVERIFY2(desk.notice().startsWith(u"The report couldn’t be saved."_s), qPrintable(desk.notice()));
        QTRY_VERIFY(!desk.window.findChild<QFileDialog *>());
        button(&desk.window.notices(), u"Choose another place…"_s)->click();
        QTRY_VERIFY(desk.window.findChild<QFileDialog *>());
    }

    void desktopChoices_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("dark"); // -1: no preference
        QTest::addColumn<bool>("still");
        const auto freedesktop = u"org.freedesktop.appearance"_s;
        const auto gnome = u"org.gnome.desktop.interface"_s;
        QTest::newRow("none") << freedesktop << u"color-scheme"_s << QVariant(0U) << -1 << false;
        QTest::newRow("dark") << freedesktop << u"color-scheme"_s << QVariant(1U) << 1 << false;
        QTest::newRow("light") << freedesktop << u"color-scheme"_s << QVariant(2U) << 0 << false;
        QTest::newRow("a scheme of later") << freedesktop << u"color-scheme"_s << QVariant(9U) << -1 << false;
        QTest::newRow("less motion") << freedesktop << u"reduced-motion"_s << QVariant(1U) << -1 << true;
        QTest::newRow("no animations") << gnome << u"enable-animations"_s << QVariant(false) << -1 << true;
        QTest::newRow("GNOME's own scheme")
            << gnome << u"color-scheme"_s << QVariant(u"prefer-dark"_s) << -1 << false;
    }

    void desktopChoices()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(int, dark);
        QFETCH(bool, still);
        DesktopChoices choices;
        choices.take(group, key, value);
        QCOMPARE(choices.prefersDark() ? int(*choices.prefersDark()) : -1, dark);
        QCOMPARE(choices.reducesMotion(), still);
    }
};

QTEST_MAIN(DialogsTest)
#include "DialogsTest.moc"
