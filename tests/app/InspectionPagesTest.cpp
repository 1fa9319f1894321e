// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/CapabilityListModel.h"
#include "app/models/leadingRow.h"
#include "app/views/CapabilityList.h"
#include "app/views/ContentView.h"
#include "app/views/OverviewPage.h"
#include "app/views/ResultsPage.h"
#include "app/views/SectionPage.h"
#include "app/widgets/CardGrid.h"
#include "app/widgets/Chip.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/HeadlineCard.h"
#include "app/widgets/OverviewCard.h"
#include "app/widgets/ScoreRing.h"
#include "inspection/DeviceProbe.h"
#include "support/AppStage.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;
using app::CapabilityListModel;
using inspection::CapabilityItem;
using inspection::CapabilitySection;
using inspection::CapabilityStatus;

namespace {

CapabilitySection section(const QString &key, const QString &title, const QList<CapabilityItem> &items)
{
    return {.title = title, .symbol = u"cpu"_s, .items = items, .key = key};
}

CapabilityItem row(const QString &key, const QString &label, const QString &value, CapabilityStatus status)
{
    return {.label = label, .value = value, .status = status, .key = key};
}

const QList<CapabilitySection> small = {
    section(u"processor"_s, u"Processor"_s,
            {row(u"memory"_s, u"Memory"_s, u"16 GB"_s, CapabilityStatus::Info),
             row(u"sme"_s, u"SME instructions"_s, u"Not supported"_s, CapabilityStatus::Unsupported)}),
    section(u"cameraAudio"_s, u"Café & Audio"_s,
            {row(u"camera.1"_s, u"Camera"_s, u"FaceTime (built in)"_s, CapabilityStatus::Supported),
             row(u"camera.1.bestPicture"_s, u"Best picture"_s, u"1920 × 1080"_s, CapabilityStatus::Info)}),
};

/// The list as lines: "= Title" for a heading, "Label" for a row.
QStringList lines(const CapabilityListModel &model)
{
    QStringList result;
    for (int at = 0; at < model.rowCount(); ++at) {
        const auto index = model.index(at);
        const auto text = index.data().toString();
        result += index.data(CapabilityListModel::HeadingRole).toBool() ? u"= "_s + text : text;
    }
    return result;
}

/// A page in a window of the usual size, on a stage that is inspected.
template <typename Kind>
std::unique_ptr<Kind> shownPage(AppStage &stage)
{
    auto page = std::make_unique<Kind>(stage.context);
    page->resize(948, 708);
    page->show();
    return page;
}

} // namespace

class InspectionPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("found");
        const QStringList processor = {u"= Processor"_s, u"Memory"_s};
        QTest::newRow("in a label, whatever its case") << u"MEM"_s << processor;
        QTest::newRow("in a value") << u"16 g"_s << processor;
        QTest::newRow("by another word for it") << u"ram"_s << processor;
        QTest::newRow("by the beginning of that word")
            << u"webc"_s << QStringList{u"= Café & Audio"_s, u"Camera"_s};
        QTest::newRow("not by its middle") << u"ebcam"_s << QStringList();
        QTest::newRow("by a word for any of several")
            << u"webcam"_s << QStringList{u"= Café & Audio"_s, u"Camera"_s};
        QTest::newRow("in a title, without its accents")
            << u"cafe"_s << QStringList{u"= Café & Audio"_s, u"Camera"_s, u"Best picture"_s};
        QTest::newRow("nothing") << u"xyzzy"_s << QStringList();
    }

    void finds()
    {
        QFETCH(const QString, search);
        QFETCH(const QStringList, found);
        CapabilityListModel model;
        model.setSections(small);
        model.setQuery({.search = search});
        QCOMPARE(lines(model), found);
    }

    void keepsRowsWhileOthersComeAndGo()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        CapabilityListModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setSections(stage.inspection.sections());
        model.setQuery({.status = CapabilityStatus::Unsupported});
        const QPersistentModelIndex kept =
            model.match(model.index(0), Qt::DisplayRole, u"Metal 4"_s).constFirst();
        const auto unsupported = lines(model);
        for (const auto &query : {app::CapabilityQuery{}, app::CapabilityQuery{.search = u"metal"_s},
                                  app::CapabilityQuery{.section = u"graphics"_s},
                                  app::CapabilityQuery{.status = CapabilityStatus::Unsupported}}) {
            model.setQuery(query);
            QVERIFY(kept.isValid());
            QCOMPARE(kept.data().toString(), u"Metal 4"_s);
        }
        QCOMPARE(lines(model), unsupported);
        // Sections that have changed places cannot be told apart from new ones.
        auto sections = stage.inspection.sections();
        std::ranges::reverse(sections);
        model.setSections(sections);
        QCOMPARE(lines(model).size(), unsupported.size());
    }

    void leadsWith_data()
    {
        QTest::addColumn<QString>("recording");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const auto mac = u"macbook-pro-m3-max"_s;
        QTest::newRow("a value that explains itself")
            << mac << u"graphics"_s << u"Apple M3 Max (unified memory)"_s;
        QTest::newRow("a value with its label") << mac << u"storage"_s << u"Available space: 437.44 GB"_s;
        QTest::newRow("the first rated row")
            << mac << u"intelligence"_s << u"Apple Intelligence: Requires macOS 26"_s;
        QTest::newRow("the built-in display") << mac << u"displays"_s << u"3024 × 1964, up to 120\u00A0Hz"_s;
        QTest::newRow("encryption by the name it has there") << mac << u"security"_s << u"FileVault: On"_s;
        QTest::newRow("no camera") << u"virtual-mac"_s << u"cameraAudio"_s << u"Camera: None"_s;
    }

    void leadsWith()
    {
        QFETCH(const QString, recording);
        QFETCH(const QString, key);
        QFETCH(const QString, expected);
        AppStage stage(recordingText(recording));
        stage.inspect();
        const auto &sections = stage.inspection.sections();
        const auto found = std::ranges::find(sections, key, &CapabilitySection::key);
        QVERIFY(found != sections.end());
        const auto lead = app::leadingRow(*found, inspection::DeviceProbe::builtInDisplay(*stage.machine));
        QVERIFY(lead);
        QCOMPARE(lead->label.isEmpty() ? lead->value : lead->label + u": "_s + lead->value, expected);
    }

    void prefersTheBuiltInDisplay()
    {
        const auto displays =
            section(u"displays"_s, u"Displays"_s,
                    {row(u"display.1.resolution"_s, u"R"_s, u"5K"_s, CapabilityStatus::Info),
                     row(u"display.2.resolution"_s, u"R"_s, u"3K"_s, CapabilityStatus::Info)});
        QCOMPARE(app::leadingRow(displays, 2)->value, u"3K"_s);
        QCOMPARE(app::leadingRow(displays, std::nullopt)->value, u"5K"_s);
        QVERIFY(!app::leadingRow(section(u"displays"_s, u"Displays"_s, {}), 1));
    }

    void looksLike_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<QString>("symbol");
        const auto add = [](const char *model, bool hasBattery, const QString &symbol) {
            QTest::newRow(model) << QString::fromLatin1(model) << hasBattery << symbol;
        };
        add("Mac15,10", true, u"device.laptop"_s);
        add("20XW0026GE", true, u"device.laptop"_s);
        add("iMacPro1,1", false, u"device.desktop"_s);
        add("Mac16,3", false, u"device.desktop"_s);
        add("Macmini9,1", false, u"device.mini"_s);
        add("Mac16,11", false, u"device.mini"_s);
        add("Mac14,14", false, u"device.mini"_s);
        add("MacPro7,1", false, u"device.tower"_s);
        add("Mac14,8", false, u"device.tower"_s);
        add("OptiPlex 7010", false, u"device.tower"_s);
    }

    void looksLike()
    {
        QFETCH(const QString, model);
        QFETCH(const bool, hasBattery);
        QTEST(app::deviceSymbol({.modelIdentifier = model, .hasBattery = hasBattery}), "symbol");
    }

    void overviewTellsTheWholeStory()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        const auto page = shownPage<app::OverviewPage>(stage);
        auto *headline = page->findChild<app::HeadlineCard *>();
        auto *grid = page->findChild<app::CardGrid *>();
        QCOMPARE(headline->accessibleName(), u"Inspecting this Mac…"_s);
        QCOMPARE(grid->cards().size(), 11);
        QVERIFY(!grid->stop()); // nothing can be opened yet
        QVERIFY(!page->findChild<app::StatusChips *>()->isEnabled());

        stage.inspect();
        stage.history.record(*stage.inspection.summary(), stage.inspection.sections());
        QCOMPARE(headline->accessibleName(),
                 u"Ada’s MacBook Pro, Apple M3 Max, 36 GB memory, 994.66 GB storage, macOS 15.3.1 "
                 u"Sequoia (24D70). "
                 "Capability score 89 percent, 40 of 45 capabilities supported"_s);
        QCOMPARE(grid->cards().size(), 12);
        QCOMPARE(grid->cards()[1]->accessibleDescription(), u"2 supported, 1 not supported, 6 info"_s);
        QCOMPARE(grid->cards().constLast()->text(), u"First scan saved"_s);
        QVERIFY(!grid->cards().constLast()->isEnabled());
        QTRY_COMPARE(page->verticalScrollBar()->maximum(), 0);
    }

    void overviewOpensTheComparison()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::OverviewPage>(stage);
        auto sections = stage.inspection.sections();
        stage.history.record(*stage.inspection.summary(), sections);
        sections[0].items[0].value = u"Another name"_s;
        sections[1].items.removeLast();
        stage.history.record(*stage.inspection.summary(), sections);
        auto *since = page->findChild<app::CardGrid *>()->cards().constLast();
        QCOMPARE(since->accessibleDescription(), u"1 changed · 1 removed"_s);
        QSignalSpy asked(page.get(), &app::OverviewPage::comparisonAsked);
        QTest::mouseClick(since, Qt::LeftButton);
        QCOMPARE(asked.size(), 1);
    }

    void cardsAreOneStopAndOpenByKeys()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::OverviewPage>(stage);
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        const auto cards = page->findChild<app::CardGrid *>()->cards();
        QCOMPARE(std::ranges::count_if(
                     cards, [](const auto *card) { return (card->focusPolicy() & Qt::TabFocus) != 0; }),
                 1);
        page->firstStop()->setFocus(Qt::TabFocusReason);
        for (const auto &[key, at] : {std::pair{Qt::Key_Right, 1},
                                      {Qt::Key_Down, 4},
                                      {Qt::Key_Left, 3},
                                      {Qt::Key_Up, 0},
                                      {Qt::Key_Up, 0},
                                      {Qt::Key_Left, 0},
                                      {Qt::Key_End, 10}}) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QCOMPARE(QApplication::focusWidget(), cards[at]);
        }
        QSignalSpy chosen(page.get(), &app::OverviewPage::sectionChosen);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.constFirst().constFirst().toString(), u"security"_s);
    }

    void filterPutsRowsInPlaceOfCards()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::OverviewPage>(stage);
        auto *chips = page->findChild<app::StatusChips *>();
        QSignalSpy changed(page.get(), &app::Page::statusChanged);
        QTest::mouseClick(chips->chip(2), Qt::LeftButton);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(page->status(), CapabilityStatus::Unsupported);
        auto *list = page->findChild<app::CapabilityList *>();
        QVERIFY(list->isVisible());
        QVERIFY(!page->findChild<app::CardGrid *>()->isVisible());
        QTRY_COMPARE(list->height(),
                     list->visualRect(list->model()->index(list->model()->rowCount() - 1, 0)).bottom() + 1);

        page->setStatus(CapabilityStatus::Warning); // of which there is none
        auto *empty = page->findChild<app::EmptyState *>();
        QVERIFY(empty->isVisible());
        QTest::mouseClick(empty->findChild<QPushButton *>(), Qt::LeftButton);
        QVERIFY(!page->status());
        QVERIFY(!empty->isVisible());
        QVERIFY(page->findChild<app::CardGrid *>()->isVisible());
    }

    void copiesRowsAndSections()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::SectionPage>(stage);
        page->setSection(u"graphics"_s);
        QVERIFY(!page->canCopy());
        auto *list = page->findChild<app::CapabilityList *>();
        for (const int at : {4, 1})
            list->selectionModel()->select(list->model()->index(at, 0), QItemSelectionModel::Select);
        page->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 u"Recommended GPU memory: 27 GB\nMetal 4: Requires macOS 26"_s);
        list->copyValues();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"27 GB\nRequires macOS 26"_s);

        page->setStatus(CapabilityStatus::Unsupported);
        QVERIFY(page->copyAsText());
        const auto text = QGuiApplication::clipboard()->text();
        QVERIFY(text.contains(u"Graphics & Metal\n  GPU: Apple M3 Max"_s));
        QVERIFY(!text.contains(u"Artificial Intelligence"_s));
    }

    void inspectingAgainKeepsThePlace()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::SectionPage>(stage);
        page->resize(900, 300);
        page->setSection(u"power"_s);
        auto *list = page->findChild<app::CapabilityList *>();
        list->setCurrentIndex(list->model()->index(2, 0));
        QTRY_VERIFY(page->verticalScrollBar()->maximum() > 60);
        page->verticalScrollBar()->setValue(60);
        stage.inspect();
        QCoreApplication::processEvents();
        QCOMPARE(page->verticalScrollBar()->value(), 60);
        QCOMPARE(list->selectionModel()->selectedRows().size(), 1);
        page->setSection(u"network"_s);
        QCOMPARE(page->verticalScrollBar()->value(), 0);
        QVERIFY(!list->hasSelection());
    }

    void resultsExplainWhyThereAreNone()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::ResultsPage>(stage);
        page->setSearch(u"hardware"_s);
        const auto says = [&](const QString &text) {
            return std::ranges::any_of(page->findChildren<QLabel *>(), [&](const auto *label) {
                return label->isVisible() && label->text() == text;
            });
        };
        QVERIFY(says(u"9 rows in 2 sections"_s));
        page->setStatus(CapabilityStatus::Warning);
        QVERIFY(says(u"Filtered by Warning"_s));
        QSignalSpy cleared(page.get(), &app::ResultsPage::searchCleared);
        const auto buttons = page->findChild<app::EmptyState *>()->findChildren<QPushButton *>();
        QTest::mouseClick(buttons[0], Qt::LeftButton);
        QVERIFY(says(u"9 rows in 2 sections"_s));
        page->setSearch(u"xyzzy"_s);
        QVERIFY(!buttons[0]->isVisible());
        QTest::mouseClick(buttons[1], Qt::LeftButton);
        QCOMPARE(cleared.size(), 1);
    }
};

QTEST_MAIN(InspectionPagesTest)
#include "InspectionPagesTest.moc"
