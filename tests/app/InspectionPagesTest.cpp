// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/WrappedText.h"
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
#include "app/widgets/TextLabel.h"
#include "inspection/DeviceProbe.h"
#include "support/AppStage.h"
#include "support/offscreen.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QPainter>
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
    void init() { support::failOnWarnings(); }

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

    void tellsStatusOnlyWhereItTellsMore_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<CapabilityStatus>("status");
        QTest::addColumn<QString>("word");
        QTest::newRow("said by the value") << u"Supported"_s << CapabilityStatus::Supported << QString();
        QTest::newRow("not said by the value")
            << u"Available"_s << CapabilityStatus::Supported << u"Supported"_s;
        QTest::newRow("an exception") << u"Off"_s << CapabilityStatus::Warning << u"Warning"_s;
        QTest::newRow("a plain fact") << u"16 GB"_s << CapabilityStatus::Info << QString();
    }

    void tellsStatusOnlyWhereItTellsMore()
    {
        QFETCH(const QString, value);
        QFETCH(const CapabilityStatus, status);
        CapabilityListModel model;
        model.setSections({section(u"s"_s, u"Section"_s, {row(u"r"_s, u"Row"_s, value, status)})});
        const auto index = model.index(1);
        QTEST(index.data(CapabilityListModel::StatusWordRole).toString(), "word");
        // Who cannot see the mark is told in any case.
        QCOMPARE(index.data(Qt::AccessibleTextRole).toString(),
                 u"Row, %1, %2"_s.arg(value, inspection::title(status)));
    }

    void roundsTheEndsOfEachCard()
    {
        CapabilityListModel model;
        model.setSections(small);
        const auto ends = [&] {
            QString result;
            for (int at = 0; at < model.rowCount(); ++at) {
                const auto index = model.index(at);
                if (index.data(CapabilityListModel::HeadingRole).toBool())
                    continue;
                result += index.data(CapabilityListModel::FirstRole).toBool() ? u'(' : u'-';
                result += index.data(CapabilityListModel::LastRole).toBool() ? u')' : u'-';
            }
            return result;
        };
        QCOMPARE(ends(), u"(--)(--)"_s);
        model.setQuery({.status = CapabilityStatus::Info});
        QCOMPARE(ends(), u"()()"_s);
        model.setQuery({.section = u"processor"_s});
        QCOMPARE(ends(), u"(--)"_s);
    }

    void keepsRowsApartThatBearOneKey()
    {
        CapabilityListModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        const auto twin = [](const QString &value) {
            return row(u"twin"_s, u"Twin"_s, value, CapabilityStatus::Info);
        };
        model.setSections({section(u"s"_s, u"Section"_s, {twin(u"one"_s), twin(u"two"_s)})});
        model.setSections(
            {section(u"s"_s, u"Section"_s, {twin(u"one"_s), twin(u"two"_s), twin(u"three"_s)})});
        QCOMPARE(model.text({model.index(3), model.index(1)}), u"Twin: one\nTwin: three"_s);
    }

    void wraps_data()
    {
        QTest::addColumn<int>("widths"); // of the letter M, ten of which are the text in two words
        QTest::addColumn<int>("mostLines");
        QTest::addColumn<int>("lines");
        QTest::addColumn<bool>("isElided");
        QTest::newRow("fits") << 20 << 2 << 1 << false;
        QTest::newRow("in two") << 6 << 2 << 2 << false;
        QTest::newRow("one line only") << 6 << 1 << 1 << true;
        QTest::newRow("more than two") << 3 << 2 << 2 << true;
        QTest::newRow("no room at all") << 0 << 2 << 1 << true;
    }

    void wraps()
    {
        QFETCH(const int, widths);
        QFETCH(const int, mostLines);
        QFETCH(const int, lines);
        const auto font = QApplication::font();
        const auto width = QFontMetricsF(font).horizontalAdvance(u'M') * widths;
        const app::WrappedText text(u"MMMMM MMMMM"_s, font, width, mostLines);
        QCOMPARE(qRound(text.height() / app::WrappedText(u"M"_s, font, 1000, 1).height()), lines);
        QTEST(text.isElided(), "isElided");
    }

    void shadesWhatWasFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("atTheLeft");
        QTest::newRow("left to right") << u"hhhh iiii"_s << true;
        QTest::newRow("right to left") << u"אאאא בבבב"_s << false;
    }

    /// The first word lies where its writing begins, in a layout of its direction.
    void shadesWhatWasFound()
    {
        QFETCH(const QString, text);
        QFETCH(const bool, atTheLeft);
        QImage image(300, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        const app::WrappedText set(text, QApplication::font(), image.width(), 2);
        set.draw(painter, {0, 5}, atTheLeft ? Qt::LeftToRight : Qt::RightToLeft, Qt::transparent, {{0, 4}},
                 Qt::red);
        painter.end();
        const auto isShaded = [&](int x) { return image.pixelColor(x, 10) == Qt::red; };
        QCOMPARE(isShaded(4), atTheLeft);
        QCOMPARE(isShaded(image.width() - 5), !atTheLeft);
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

    void arrowsFollowTheLayout()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::OverviewPage>(stage);
        page->setLayoutDirection(Qt::RightToLeft);
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        const auto cards = page->findChild<app::CardGrid *>()->cards();
        cards[0]->setFocus(Qt::TabFocusReason);
        QVERIFY(cards[0]->x() > cards[1]->x());
        QTest::keyClick(cards[0], Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), cards[1]);
        page->resize(400, 700); // a column
        QTest::keyClick(cards[1], Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), cards[2]);
    }

    void speaksOfComputersWhereThereIsNoMac()
    {
        AppStage stage(recordingText(u"linux-laptop"_s));
        const auto page = shownPage<app::OverviewPage>(stage);
        QCOMPARE(page->findChild<app::HeadlineCard *>()->accessibleName(), u"Inspecting this computer…"_s);
        stage.inspect();
        page->resize(500, 700); // where the ring alone tells the score
        QVERIFY(page->findChild<app::ScoreRing *>()->toolTip().startsWith(
            u"Share of rated capabilities that this computer supports\n"_s));
    }

    void speaksAnotherLanguage()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        stage.inspect();
        const auto page = shownPage<app::SectionPage>(stage);
        page->setSection(u"network"_s);
        QVERIFY(stage.language.setLanguage(u"de"_s));
        stage.inspect();
        const auto labels = page->findChildren<app::ElidedLabel *>();
        QVERIFY(
            std::ranges::any_of(labels, [](const auto *label) { return label->text() == u"Netzwerk"_s; }));
        QCOMPARE(page->findChild<app::StatusChips *>()->chip(1)->text(), u"Unterstützt"_s);
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
        page->setStatus(CapabilityStatus::Supported);
        page->setSearch(u"xyzzy"_s);
        QVERIFY(page->status()); // more letters are the same search
        QVERIFY(!buttons[0]->isVisible());
        QTest::mouseClick(buttons[1], Qt::LeftButton);
        QCOMPARE(cleared.size(), 1);
        page->hide();
        QVERIFY(!page->status()); // the next one is another
    }
};

QTEST_MAIN(InspectionPagesTest)
#include "InspectionPagesTest.moc"
