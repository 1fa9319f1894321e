// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/ContentView.h"
#include "app/widgets/NoticeBar.h"
#include "support/AppStage.h"
#include "support/offscreen.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <chrono>

using namespace quillmark;
using namespace quillmark::app;
using namespace quillmark::support;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A window with a bar above a field that takes the focus.
struct Window
{
    explicit Window(std::chrono::milliseconds stay = 1h)
    {
        Appearance::current();
        window.resize(1000, 300);
        bar = new NoticeBar(&window, stay);
        field = new QLineEdit(&window);
        auto *column = new QVBoxLayout(&window);
        column->addWidget(bar);
        column->addWidget(field);
        window.show();
        window.activateWindow();
        field->setFocus();
    }

    QWidget window;
    NoticeBar *bar;
    QLineEdit *field;
};

QPushButton *button(const NoticeBar &bar, const QString &text)
{
    for (auto *found : bar.findChildren<QPushButton *>()) {
        if (found->text() == text && !found->isHidden())
            return found;
    }
    return nullptr;
}

} // namespace

class NoticeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { support::failOnWarnings(); }

    void successLeavesByItselfAndOthersStay()
    {
        Window stage(20ms);
        int closed = 0;
        const auto close = [&] { ++closed; };
        stage.bar->show({Notice::Kind::Success, u"Report saved."_s, {}, {}, close});
        QVERIFY(stage.bar->isVisible());
        QTRY_VERIFY(!stage.bar->isVisible());
        QCOMPARE(closed, 0); // nobody closed it

        stage.bar->show({Notice::Kind::Error, u"The report couldn’t be saved."_s, {}, {}, close});
        QTest::qWait(100);
        QVERIFY(stage.bar->isShown());
        stage.bar->dismiss();
        QTRY_VERIFY(!stage.bar->isVisible());
        stage.bar->dismiss();
        QCOMPARE(closed, 1);
    }

    void successStaysWhileItHasTheFocus()
    {
        Window stage(20ms);
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        stage.bar->show({Notice::Kind::Success, u"Report saved."_s, {}, {{u"Show"_s, {}}}, {}});
        button(*stage.bar, u"Show"_s)->setFocus(Qt::TabFocusReason);
        QTest::qWait(100);
        QVERIFY(stage.bar->isShown());
        stage.field->setFocus();
        QTRY_VERIFY(!stage.bar->isShown());
    }

    void escapeClosesItFromWithin()
    {
        Window stage;
        int closed = 0;
        stage.bar->show(
            {Notice::Kind::Update, u"Quillmark 2 is available."_s, {}, {{u"Get"_s, {}}}, [&] { ++closed; }});
        QTest::keyClick(button(*stage.bar, u"Get"_s), Qt::Key_Escape);
        QVERIFY(!stage.bar->isShown());
        QCOMPARE(closed, 1);
    }

    void newestWins()
    {
        Window stage;
        int closed = 0;
        const Notice second{Notice::Kind::Error, u"Second"_s, {}, {{u"B"_s, {}}}, {}};
        stage.bar->show(
            {Notice::Kind::Update, u"First"_s, {}, {{u"A"_s, [&] { stage.bar->show(second); }}}, [&] {
                 ++closed;
             }});
        button(*stage.bar, u"A"_s)->click(); // which a notice outlives that it brings itself
        QVERIFY(stage.bar->isShown());
        QVERIFY(!button(*stage.bar, u"A"_s));
        QVERIFY(button(*stage.bar, u"B"_s));
        QCOMPARE(closed, 0);
        QCOMPARE(stage.bar->accessibleName(), u"Second"_s); // as it is announced
    }

    void growsWhereTheTextAndTheButtonsNeedRoom()
    {
        Window stage;
        stage.bar->show({Notice::Kind::Error,
                         u"The report couldn’t be saved."_s,
                         u"There is not enough free space on “Backup of the second computer”."_s,
                         {{u"Choose another place…"_s, {}}, {u"What’s new"_s, {}}},
                         {}});
        const int usual = Appearance::current().scaled(48);
        QTRY_COMPARE(stage.bar->heightForWidth(1000), usual);
        const int narrow = stage.bar->heightForWidth(480);
        QVERIFY2(narrow >= usual + 20, qPrintable(QString::number(narrow)));
        stage.window.resize(480, 300);
        QTRY_VERIFY(stage.bar->height() >= narrow);
        const auto *text = stage.bar->findChild<QLabel *>();
        QVERIFY(button(*stage.bar, u"What’s new"_s)->mapTo(stage.bar, QPoint()).y() >=
                text->mapTo(stage.bar, text->rect().bottomLeft()).y());
    }
};

QTEST_MAIN(NoticeTest)
#include "NoticeTest.moc"
