// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/ComparisonModel.h"
#include "app/models/HistoryModel.h"
#include "app/views/ComparisonView.h"
#include "app/views/ContentView.h"
#include "app/views/HistoryView.h"
#include "app/widgets/CardList.h"
#include "app/widgets/Chip.h"
#include "app/widgets/NoticeBar.h"
#include "support/AppStage.h"
#include "support/offscreen.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace quillmark;
using namespace quillmark::app;
using namespace quillmark::support;
using namespace Qt::StringLiterals;
using history::ScanSnapshot;
using inspection::CapabilityStatus;

namespace {

/// A scan of that many days ago with one section of rows.
ScanSnapshot scan(int daysAgo, const QList<ScanSnapshot::Item> &items, const QString &model = u"Mac15,3"_s)
{
    return {.id = inspection::freshId(),
            .date = QDateTime::currentDateTimeUtc().addDays(-daysAgo),
            .deviceName = u"Test Mac"_s,
            .modelIdentifier = model,
            .chip = u"Apple M3"_s,
            .osVersion = u"macOS 15.0"_s,
            .sections = {{u"Media"_s, u"film"_s, items, u"media"_s}},
            .language = u"en"_s};
}

ScanSnapshot::Item row(const QString &label, const QString &value,
                       CapabilityStatus status = CapabilityStatus::Info)
{
    return {.label = label, .value = value, .status = status, .key = label, .isVolatile = false};
}

/// Newest first: a change and a new row, another machine, the first scan.
QList<ScanSnapshot> scans()
{
    return {scan(0, {row(u"Encoder"_s, u"On"_s), row(u"Decoder"_s, u"Off"_s), row(u"Camera"_s, u"Yes"_s)}),
            scan(40, {row(u"Encoder"_s, u"Off"_s), row(u"Decoder"_s, u"Off"_s), row(u"Screen"_s, u"1"_s)}),
            scan(80, {row(u"Encoder"_s, u"Off"_s)}, u"Mac14,2"_s), scan(120, {row(u"Encoder"_s, u"Off"_s)})};
}

QByteArray recording()
{
    return changedRecording();
}

/// The page in a window, with the keys of the window.
struct Window
{
    explicit Window(AppStage &stage)
        : view(stage.context)
    {
        view.QWidget::show();
        view.showPlace(u"history"_s);
        page = static_cast<HistoryView *>(view.currentPage());
        list = page->findChild<CardList *>();
        model = static_cast<HistoryModel *>(list->model());
        view.activateWindow();
        list->setFocus(Qt::TabFocusReason);
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("the window cannot be active here");
    }

    void tick(int scanNumber)
    {
        for (int at = 0; at < model->rowCount(); ++at) {
            if (!model->scanAt(model->index(at)) || scanNumber-- > 0)
                continue;
            list->setCurrentIndex(model->index(at));
            QTest::keyClick(list, Qt::Key_Space);
            return;
        }
    }

    /// The question that is open.
    QMessageBox *question() const { return page->findChild<QMessageBox *>(); }

    void answer(const QString &verb) const
    {
        for (auto *button : question()->buttons()) {
            if (button->text() == verb)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QTRY_VERIFY(!question());
    }

    ContentView view;
    HistoryView *page;
    CardList *list;
    HistoryModel *model;
};

QStringList tags(const HistoryModel &model)
{
    QStringList result;
    for (int at = 0; at < model.rowCount(); ++at) {
        if (model.scanAt(model.index(at)))
            result += model.index(at).data(HistoryModel::TagRole).toString();
    }
    return result;
}

QStringList rows(const QAbstractItemModel &model, int role = Qt::DisplayRole)
{
    QStringList result;
    for (int at = 0; at < model.rowCount(); ++at)
        result += model.index(at, 0).data(role).toString();
    return result;
}

} // namespace

class HistoryPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { support::failOnWarnings(); }

    void groupsByDay_data()
    {
        QTest::addColumn<QDate>("day");
        QTest::addColumn<ScanGroup>("group");
        QTest::newRow("today") << QDate(2026, 3, 1) << ScanGroup::Today;
        QTest::newRow("yesterday, last month") << QDate(2026, 2, 28) << ScanGroup::Yesterday;
        QTest::newRow("two days ago, last month") << QDate(2026, 2, 27) << ScanGroup::Month;
        QTest::newRow("this month a year ago") << QDate(2025, 3, 1) << ScanGroup::Month;
        QTest::newRow("tomorrow, by a clock set back") << QDate(2026, 3, 2) << ScanGroup::Month;
    }

    void groupsByDay()
    {
        QFETCH(QDate, day);
        QTEST(scanGroup(day, QDate(2026, 3, 1)), "group");
    }

    void groupsWithinTheMonth() { QCOMPARE(scanGroup({2026, 3, 2}, {2026, 3, 31}), ScanGroup::ThisMonth); }

    void listsScansUnderHeadings()
    {
        AppStage stage(recording(), scans());
        HistoryModel model(stage.context);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(rows(model, HistoryModel::HeadingRole).filter(u"true"_s).size(), 4);
        QCOMPARE(model.index(0).data().toString(), u"Today"_s);
        QCOMPARE(model.flags(model.index(0)), Qt::NoItemFlags);
        auto summaries = rows(model, HistoryModel::SummaryRole);
        summaries.removeAll(QString());
        QCOMPARE(summaries, QStringList({u"1 changed, 1 added, 1 removed"_s, u"Other Mac"_s, u"Other Mac"_s,
                                         u"First scan"_s}));
        // What the newest is compared with goes: its summary is another one.
        stage.history.remove(stage.history.snapshots()[1].id);
        QCOMPARE(model.index(1).data(HistoryModel::SummaryRole).toString(), u"Other Mac"_s);
        stage.history.clear();
        QCOMPARE(model.rowCount(), 0);
    }

    void ticksTwoAtMost()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        window.tick(3);
        QCOMPARE(tags(*window.model), QStringList({u""_s, u""_s, u""_s, u""_s}));
        QVERIFY(!window.model->pair());
        window.tick(1);
        QCOMPARE(tags(*window.model), QStringList({u""_s, u"Newer"_s, u""_s, u"Older"_s}));
        window.tick(2); // the one ticked first goes
        QCOMPARE(tags(*window.model), QStringList({u""_s, u"Newer"_s, u"Older"_s, u""_s}));
        QCOMPARE(window.model->pair()->first.id, stage.history.snapshots()[2].id);
        window.tick(2);
        QCOMPARE(window.model->ticked(), QList({stage.history.snapshots()[1].id}));
    }

    void keysCompareAndComeBack()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        window.tick(0);
        QTest::keyClick(window.list, Qt::Key_Return);
        QVERIFY(!window.page->isComparing()); // one is not enough
        window.tick(1);
        QTest::keyClick(window.list, Qt::Key_Return);
        QVERIFY(window.page->isComparing());
        QCOMPARE(window.page->headerTitle(), u"Compare scans"_s);
        QVERIFY(!window.page->headerAction());
        QTest::keyClick(&window.view, Qt::Key_Escape);
        QVERIFY(!window.page->isComparing());
        QCOMPARE(window.model->ticked().size(), 2);
        QVERIFY(window.page->headerAction());
        QVERIFY(!window.page->goBack());
    }

    void clicksTickAndDelete()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        const auto row = window.list->visualRect(window.model->index(1));
        auto *viewport = window.list->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, {row.left() + 25, row.center().y()});
        QCOMPARE(window.model->ticked().size(), 1);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, {row.right() - 30, row.center().y()});
        QCOMPARE(window.model->ticked().size(), 1);
        QVERIFY(window.question());
        QCOMPARE(window.question()->defaultButton()->text(), u"Cancel"_s);
        window.answer(u"Cancel"_s);
        QCOMPARE(stage.history.snapshots().size(), 4);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, {row.right() - 30, row.center().y()});
        window.answer(u"Delete"_s);
        QTRY_COMPARE(stage.history.snapshots().size(), 3);
        QVERIFY(window.model->ticked().isEmpty());
    }

    void deletesTheCurrentScan()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        const auto kept = stage.history.snapshots()[2].id;
        window.tick(1);
        QVERIFY(window.page->canDelete());
        window.view.actions().deleteSelected->trigger();
        window.answer(u"Delete"_s);
        QTRY_COMPARE(stage.history.snapshots().size(), 3);
        QCOMPARE(window.list->currentIndex().data(HistoryModel::IdRole).toUuid(), kept);
    }

    void staysAtItsScanWhenOneIsAdded()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        window.tick(1);
        const auto current = window.list->currentIndex().data(HistoryModel::IdRole).toUuid();
        const auto row = window.list->currentIndex().row();
        stage.inspect(); // the window saves it
        QTRY_COMPARE(stage.history.snapshots().size(), 5);
        QCOMPARE(window.list->currentIndex().data(HistoryModel::IdRole).toUuid(), current);
        QVERIFY(window.list->currentIndex().row() != row);
        QCOMPARE(window.model->ticked(), QList({current}));
    }

    void clearsAfterAQuestion()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        window.tick(0);
        window.page->headerAction()->trigger();
        window.answer(u"Cancel"_s);
        QCOMPARE(window.model->ticked().size(), 1);
        window.page->headerAction()->trigger();
        window.answer(u"Clear history"_s);
        QTRY_VERIFY(stage.history.snapshots().isEmpty());
        QVERIFY(window.model->ticked().isEmpty());
        QVERIFY(!window.page->headerAction());
        QVERIFY(stage.history.flush());
        QCOMPARE(contents(stage.historyFile()).trimmed(), "[]"_ba);
    }

    void comparesByWhatHappened()
    {
        AppStage stage(recording(), scans());
        Window window(stage);
        window.page->compareNewest();
        auto *view = window.page->findChild<ComparisonView *>();
        auto *model = view->findChild<ComparisonModel *>();
        QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(rows(*model), QStringList({u"Media"_s, u"Encoder"_s, u"Camera"_s, u"Screen"_s}));
        QCOMPARE(rows(*model, Qt::AccessibleTextRole),
                 QStringList({QString(), u"Changed: Encoder, from Off, Info, to On, Info"_s,
                              u"Added: Camera, Yes, Info"_s, u"Removed: Screen, 1, Info"_s}));
        auto *chips = view->findChild<ChipRow *>();
        QTest::mouseClick(chips->chip(2), Qt::LeftButton);
        QCOMPARE(rows(*model), QStringList({u"Media"_s, u"Camera"_s}));
        QCOMPARE(chips->chip(2)->accessibleName(), u"Added, 1 row"_s);
        QVERIFY(window.page->copyAsText());
        const auto text = QGuiApplication::clipboard()->text();
        QVERIFY2(text.contains(u"\nMedia\n  Encoder: Off → On\n  Camera: added, Yes\n"_s), qPrintable(text));
    }

    void tellsStatusesWhereTextsAreTheSame()
    {
        ComparisonModel model;
        model.setScans(scan(1, {row(u"Metal"_s, u"Available"_s)}),
                       scan(0, {row(u"Metal"_s, u"Available"_s, CapabilityStatus::Supported)}));
        QCOMPARE(model.index(1).data(ComparisonModel::OldValueRole).toString(), u"Available · Info"_s);
        QCOMPARE(model.index(1).data(ComparisonModel::NewValueRole).toString(), u"Available · Supported"_s);
    }

    void saysWhyThereIsLittleToShow()
    {
        AppStage stage(recording());
        ComparisonView view(stage.context);
        view.retranslate();
        const auto shows = [&](const QString &start) {
            const auto labels = view.findChildren<QLabel *>();
            return std::ranges::any_of(labels, [&](const QLabel *label) {
                return label->isVisibleTo(&view) && label->text().startsWith(start);
            });
        };
        const auto older = scan(1, {row(u"Metal"_s, u"Ja"_s)});
        auto newer = older;
        view.setScans(older, newer);
        QVERIFY(shows(u"No differences"_s));
        QVERIFY(!shows(u"The two scans are in different languages"_s));
        newer.language = u"de"_s;
        newer.sections[0].items[0].status = CapabilityStatus::Warning;
        view.setScans(older, newer);
        QVERIFY(!shows(u"No differences"_s));
        QVERIFY(shows(u"The two scans are in different languages"_s));
    }

    void asksForAFirstScan()
    {
        AppStage stage(recording());
        HistoryView page(stage.context);
        QSignalSpy asked(&page, &HistoryView::inspectionAsked);
        QVERIFY(!page.headerAction());
        QTest::keyClick(page.firstStop(), Qt::Key_Return);
        QCOMPARE(asked.size(), 1);
    }

    void tellsAFailureOnce()
    {
        AppStage stage(recording(), scans());
        HistoryView page(stage.context);
        QList<Notice> told;
        connect(&page, &Page::noticeAsked, this, [&](const Notice &notice) { told += notice; });
        const history::SaveError error{history::SaveError::Kind::NotWritten, u"No space left on device"_s};
        Q_EMIT stage.history.saveFailed(error);
        Q_EMIT stage.history.saveFailed(error);
        QCOMPARE(told.size(), 1);
        QCOMPARE(told[0].kind, Notice::Kind::Error);
        QCOMPARE(told[0].detail, u"No space left on device"_s);
    }
};

QTEST_MAIN(HistoryPageTest)
#include "HistoryPageTest.moc"
