// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/Place.h"
#include "app/models/SidebarModel.h"
#include "app/views/ContentView.h"
#include "app/widgets/NoticeBar.h"
#include "support/AppStage.h"
#include "support/offscreen.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { support::failOnWarnings(); }

    void opensEveryPlaceOfEveryMachine_data()
    {
        QTest::addColumn<QString>("recording");
        for (const auto &name : recordingNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    void opensEveryPlaceOfEveryMachine()
    {
        QFETCH(QString, recording);
        AppStage stage(recordingText(recording));
        app::ContentView window(stage.context);
        window.QWidget::show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(stage.inspection.lastUpdated());
        app::SidebarModel places(stage.context);
        for (int row = 0; row < places.rowCount(); ++row) {
            const auto place = places.index(row).data(app::SidebarModel::PlaceRole).toString();
            if (place.isEmpty())
                continue;
            window.showPlace(place);
            QCOMPARE(window.place(), place);
            QVERIFY(!window.grab().isNull());
        }
        QCOMPARE(stage.history.snapshots().size(), 1);
    }

    void everyStopHasAName_data()
    {
        QTest::addColumn<QString>("place");
        for (const auto &place : {app::place::overview, app::place::ofSection(u"security"_s),
                                  app::place::history, app::place::battery, app::place::monitor})
            QTest::newRow(qPrintable(place)) << place;
    }

    void everyStopHasAName()
    {
        QFETCH(QString, place);
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        app::ContentView window(stage.context);
        window.QWidget::show();
        window.showPlace(place);
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSet<const QWidget *> stops;
        for (int step = 0; step < 100; ++step) {
            QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
            auto *stop = window.focusWidget();
            if (!stop || stops.contains(stop))
                break;
            stops += stop;
            const auto *accessible = QAccessible::queryAccessibleInterface(stop);
            QVERIFY(accessible);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), stop->metaObject()->className());
        }
        QVERIFY(stops.size() > 4); // the sidebar, the buttons, the page
        QVERIFY(stops.size() < 40);
    }

    void speaksAnotherLanguageAtOnce()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        app::ContentView window(stage.context);
        window.QWidget::show();
        stage.inspect();
        auto *list = window.findChild<QListView *>();
        const auto title = [&](int row) { return list->model()->index(row, 0).data().toString(); };
        const auto english = title(0);
        QVERIFY(stage.language.setLanguage(u"de"_s));
        QTRY_COMPARE(stage.inspection.sections().constFirst().items.constFirst().label, u"Gerätename"_s);
        QVERIFY(title(0) != english);                  // the window's own
        QCOMPARE(stage.history.snapshots().size(), 1); // words alone are no news
    }

    void wearsTheOtherAppearanceAtOnce()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        app::ContentView window(stage.context);
        window.QWidget::show();
        const auto ground = [&] { return window.grab().toImage().pixelColor(window.width() - 4, 100); };
        for (const bool isDark : {true, false}) {
            app::Appearance::current().setDark(isDark);
            QCOMPARE(ground(), app::Appearance::current().color(design::Role::Window));
        }
        QVERIFY(ground() != design::Theme::dark().color(design::Role::Window));
    }

    void sidebarShowsThePlaceWhereverOneClicks()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        app::ContentView window(stage.context);
        window.QWidget::show();
        auto *list = window.findChild<QListView *>();
        const auto rowOf = [&](int row) { return list->visualRect(list->model()->index(row, 0)).center(); };
        const auto selected = [&] { return list->selectionModel()->selectedIndexes(); };
        const auto overview = selected();
        QCOMPARE(overview.size(), 1);
        const auto heading = rowOf(1);
        const auto beside = QPoint(20, list->viewport()->height() - 2);
        QVERIFY(!list->indexAt(beside).isValid());
        for (const auto &spot : {heading, beside}) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, spot);
            QCOMPARE(selected(), overview);
        }
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, rowOf(0));
        QCOMPARE(selected(), overview);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowOf(2));
        QCOMPARE(window.place(), app::place::ofSection(u"system"_s));
        QCOMPARE(selected().size(), 1);
        QVERIFY(selected() != overview);
    }

    void sidebarIsASoundModel()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        app::SidebarModel model(stage.context);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        const auto before = model.rowCount();
        stage.inspect();
        QCOMPARE(model.rowCount(), before);
        QVERIFY(!model.flags(model.index(1)).testFlag(Qt::ItemIsSelectable)); // a heading
    }

    void searchHidesThePlaceAndComesBackToIt()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        app::ContentView window(stage.context);
        window.QWidget::show();
        window.showPlace(app::place::ofSection(u"graphics"_s));
        auto *section = window.currentPage();
        auto *search = window.findChild<QLineEdit *>();
        QTest::keyClicks(search, u"  Metal"_s);
        QTRY_VERIFY(window.currentPage() != section);
        QCOMPARE(window.place(), app::place::ofSection(u"graphics"_s));
        QVERIFY(!window.findChild<QListView *>()->selectionModel()->hasSelection());
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(window.currentPage(), section);
        QVERIFY(search->text().isEmpty());
        QVERIFY(window.findChild<QListView *>()->selectionModel()->hasSelection());
    }

    void aSearchThatBeganElsewhereLeadsBackThere()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        app::ContentView window(stage.context);
        window.QWidget::show();
        auto *search = window.findChild<QLineEdit *>();
        for (const auto *typed : {"", "metal"}) {
            window.showPlace(app::place::history); // which has no search
            auto *history = window.currentPage();
            window.actions().find->trigger();
            QVERIFY(search->isVisible());
            search->setFocus();
            QTRY_VERIFY(search->hasFocus());
            QTest::keyClicks(search, QString::fromLatin1(typed));
            QTest::keyClick(search, Qt::Key_Escape);
            QCOMPARE(window.place(), app::place::history);
            QCOMPARE(window.currentPage(), history);
            QVERIFY(search->text().isEmpty());
        }
        // Having gone on from there, Esc has nothing to do with it any more.
        window.actions().find->trigger();
        window.showPlace(app::place::ofSection(u"graphics"_s));
        QTest::keyClicks(search, u"metal"_s);
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(window.place(), app::place::ofSection(u"graphics"_s));
    }

    void tellsThatTheHistoryIsNotSaved()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        app::ContentView window(stage.context);
        QVERIFY(QDir().mkpath(stage.history.file())); // where the file should be
        QVERIFY(!window.notices().isShown());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"could not save snapshots"_s));
        stage.inspect();
        QVERIFY(!stage.history.flush());
        QVERIFY(QDir().rmdir(stage.history.file())); // a later inspection tries again
        QTRY_VERIFY(window.notices().isShown());
        QCOMPARE(stage.history.snapshots().size(), 1);
    }

    void goesBackTheWayItCame()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        app::ContentView window(stage.context);
        window.showPlace(app::place::battery);
        window.showPlace(app::place::history);
        window.showPlace(u"section/there is no such section"_s);
        QCOMPARE(window.place(), app::place::overview);
        QStringList way;
        for (int step = 0; step < 4; ++step) {
            window.actions().back->trigger();
            way += window.place();
        }
        QCOMPARE(way, QStringList({app::place::history, app::place::battery, app::place::overview,
                                   app::place::overview}));
    }

    void comesBackWhereItWasClosed()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        {
            app::ContentView window(stage.context);
            window.resize(1000, 700);
            window.QWidget::show();
            window.showPlace(app::place::battery);
            window.actions().hideSidebar->setChecked(true);
            QVERIFY(window.close());
        }
        app::ContentView window(stage.context);
        window.restoreWindow();
        QCOMPARE(window.size(), QSize(1000, 700));
        QCOMPARE(window.place(), app::place::battery);
        QVERIFY(window.actions().hideSidebar->isChecked());
    }
};

QTEST_MAIN(WindowTest)
#include "WindowTest.moc"
