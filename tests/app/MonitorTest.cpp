// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/MenuBar.h"
#include "app/models/Place.h"
#include "app/settingKeys.h"
#include "app/views/ContentView.h"
#include "app/views/MenuBarMonitorView.h"
#include "app/views/MonitorView.h"
#include "app/widgets/ChartTrace.h"
#include "app/widgets/ChartView.h"
#include "app/widgets/CoreBars.h"
#include "app/widgets/FigureLine.h"
#include "app/widgets/MonitorRowView.h"
#include "support/AppStage.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <memory>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;
using app::ChartTrace;
using monitor::ChartPoint;

namespace {

/// The history of a sine with samples at these moments, newest last, of which the last 120 are known.
std::vector<ChartPoint> historyAt(const std::vector<double> &moments, double phase)
{
    const auto first = moments.size() - std::min(moments.size(), monitor::maximumSamples);
    std::vector<ChartPoint> points;
    for (auto i = first; i < moments.size(); ++i) {
        const double step = i > 0 ? moments[i] - moments[i - 1] : 0;
        points.push_back({.age = moments.back() - moments[i],
                          .value = 0.5 + 0.3 * std::sin(moments[i] / 7 + phase),
                          .joinsPrevious = i > first && !monitor::isGap(step)});
    }
    return points;
}

std::vector<ChartTrace::Line> linesAt(const std::vector<double> &moments)
{
    return {{historyAt(moments, 0), Qt::blue, true}, {historyAt(moments, 2), Qt::red, false}};
}

} // namespace

class MonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsWhoeverSees()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        auto window = std::make_unique<app::ContentView>(stage.context);
        window->showPlace(app::place::monitor);
        QCOMPARE(stage.monitor.clients(), 0); // the window is not shown yet
        window->QWidget::show();
        QCOMPARE(stage.monitor.clients(), 1);
        window->showPlace(app::place::battery);
        QCOMPARE(stage.monitor.clients(), 0);
        window->showPlace(app::place::monitor);
        QCOMPARE(stage.monitor.clients(), 1);
        window->showMinimized();
        QTRY_COMPARE(stage.monitor.clients(), 0);
        window->showPlace(app::place::history);
        window->showPlace(app::place::monitor);
        QCOMPARE(stage.monitor.clients(), 0); // still minimised
        window->showNormal();
        QTRY_COMPARE(stage.monitor.clients(), 1);
        window->hide();
        QCOMPARE(stage.monitor.clients(), 0);
        window->QWidget::show();
        QCOMPARE(stage.monitor.clients(), 1);
        window.reset();
        QCOMPARE(stage.monitor.clients(), 0);
    }

    void movesOnAsIfItWereDrawnAnew_data()
    {
        QTest::addColumn<QSize>("plot");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<double>("step");
        // A little more than a second, so that no end of a line stands at the left edge.
        QTest::newRow("whole columns") << QSize(476, 140) << 1.0 << 1.25;
        QTest::newRow("parts of columns") << QSize(431, 150) << 1.0 << 1.02;
        QTest::newRow("a screen of twice the pixels") << QSize(733, 280) << 2.0 << 1.03;
        QTest::newRow("narrow") << QSize(119, 60) << 1.5 << 1.1;
    }

    void movesOnAsIfItWereDrawnAnew()
    {
        QFETCH(QSize, plot);
        QFETCH(double, ratio);
        QFETCH(double, step);
        ChartTrace trace;
        std::vector<double> moments;
        for (int sample = 0; sample < 260; ++sample) {
            const double gap = sample == 40 || sample == 41 || sample == 200 ? 4 : step;
            moments.push_back(moments.empty() ? 0 : moments.back() + gap);
            trace.update(linesAt(moments), {plot, ratio});
            auto anew = trace;
            anew.invalidate();
            anew.update(linesAt(moments), {plot, ratio});
            if (trace.picture() != anew.picture())
                QFAIL(qPrintable(u"differs at sample %1"_s.arg(sample)));
        }
        QVERIFY(!trace.picture().allGray()); // there is something to compare
    }

    void startsAnewWithAnotherHistory()
    {
        const ChartTrace::Shape shape{QSize(300, 100), 1};
        ChartTrace trace;
        trace.update(linesAt({0, 1, 2, 3}), shape);
        trace.update(linesAt({50, 51}), shape);
        ChartTrace other;
        other.update(linesAt({50, 51}), shape);
        QCOMPARE(trace.picture(), other.picture());
        trace.update(linesAt({}), shape);
        QVERIFY(trace.picture().allGray());
    }

    void showsWhatItKnows_data()
    {
        QTest::addColumn<QString>("recording");
        QTest::addColumn<bool>("hasBattery");
        QTest::newRow("laptop") << u"macbook-pro-m3-max"_s << true;
        QTest::newRow("no battery") << u"mac-mini-m4-pro"_s << false;
    }

    void showsWhatItKnows()
    {
        QFETCH(QString, recording);
        QFETCH(bool, hasBattery);
        AppStage stage(recordingText(recording));
        app::MonitorView view(stage.context);
        const auto isShown = [&view](const QString &text) {
            for (const auto *label : view.findChildren<QLabel *>()) {
                if (label->isVisible() && label->text().startsWith(text))
                    return true;
            }
            return false;
        };
        view.resize(900, 700);
        view.show();
        QVERIFY(isShown(u"Collecting samples…"_s));
        QTRY_VERIFY(stage.monitor.latest());
        QVERIFY(!isShown(u"Collecting samples…"_s));
        QVERIFY(isShown(u"Thermal state"_s));
        QCOMPARE(isShown(u"Battery"_s), hasBattery);
        for (const auto *chart : view.findChildren<app::ChartView *>()) {
            QVERIFY(!chart->accessibleName().isEmpty());
            QVERIFY(!chart->accessibleDescription().isEmpty());
        }
    }

    void popUpWatchesWhileItIsOpen()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        app::MenuBarMonitorView popUp(stage.context);
        QSignalSpy open(&popUp, &app::MenuBarMonitorView::openAsked);
        QCOMPARE(stage.monitor.clients(), 0);
        popUp.openBelow({300, 0, 30, 24});
        QCOMPARE(stage.monitor.clients(), 1);
        QTRY_VERIFY(!popUp.findChildren<app::MonitorRowView *>().isEmpty());
        const auto rows = popUp.findChildren<app::MonitorRowView *>();
        QCOMPARE(rows.size(), 7);
        for (const auto *row : rows)
            QVERIFY(row->accessibleName().contains(row->row().label));
        QTest::keyClick(&popUp, Qt::Key_Escape);
        QVERIFY(!popUp.isVisible());
        QCOMPARE(stage.monitor.clients(), 0);

        popUp.openBelow({300, 0, 30, 24});
        QTest::keyClick(popUp.focusWidget(), Qt::Key_Return);
        QCOMPARE(open.size(), 1);
        QVERIFY(!popUp.isVisible());
    }

    void labelShowsTheChosenFigure()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        const auto name = u"Quillmark live monitor"_s;
        {
            app::MenuBarLabel label(stage.context);
            QCOMPARE(label.toolTip(), name);
            label.setShown(true);
            QCOMPARE(stage.monitor.clients(), 1);
            QTRY_VERIFY(stage.monitor.samples().size() > 7); // the recording has ended, and stays as it is
            QCOMPARE(label.figure(), u"0%"_s);
            QSignalSpy changed(&label, &app::MenuBarLabel::changed);
            stage.settings.setValue(app::keys::menuBarFigure, u"memory"_s);
            QCOMPARE(label.figure(), u"53%"_s);
            QCOMPARE(label.toolTip(), name + u"\nMemory used: 53%"_s);
            stage.settings.setValue(app::keys::menuBarFigure, u"none"_s);
            QCOMPARE(label.figure(), QString());
            QCOMPARE(changed.size(), 2);
        }
        QCOMPARE(stage.monitor.clients(), 0);
    }

    void hidesNowhereWithoutATray()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        if (app::MenuBar::isAvailable())
            QSKIP("this platform has a tray");
        app::MenuBar menuBar(stage.context);
        stage.settings.setValue(app::keys::showsMenuBarMonitor, true);
        QVERIFY(!menuBar.isShown());
        QCOMPARE(stage.monitor.clients(), 0);
    }

    void figuresAreNumbersWithTheirUnits_data()
    {
        QTest::addColumn<QString>("figure");
        QTest::addColumn<QStringList>("leftToRight");
        QTest::addColumn<QStringList>("rightToLeft");
        QTest::newRow("share") << u"23%"_s << QStringList{u"23"_s, u"%"_s} << QStringList{u"%"_s, u"23"_s};
        QTest::newRow("unit") << u"18,96\u00a0GB"_s << QStringList{u"18,96"_s, u"GB"_s}
                              << QStringList{u"GB"_s, u"18,96"_s};
        QTest::newRow("sign before") << u"%7"_s << QStringList{u"%"_s, u"7"_s} << QStringList{u"7"_s, u"%"_s};
        const QStringList arabic = {u"١٨٫٩"_s, u"غيغابايت"_s};
        QTest::newRow("from right to left") << u"١٨٫٩ غيغابايت"_s << arabic << arabic;
        QTest::newRow("word") << u"None"_s << QStringList{u"None"_s} << QStringList{u"None"_s};
        QTest::newRow("nothing") << QString() << QStringList{QString()} << QStringList{QString()};
    }

    void figuresAreNumbersWithTheirUnits()
    {
        QFETCH(QString, figure);
        QFETCH(QStringList, leftToRight);
        QFETCH(QStringList, rightToLeft);
        const auto texts = [&figure](Qt::LayoutDirection direction) {
            QStringList result;
            for (const auto &part : app::figureParts(figure, direction))
                result += part.text;
            return result;
        };
        QCOMPARE(texts(Qt::LeftToRight), leftToRight);
        QCOMPARE(texts(Qt::RightToLeft), rightToLeft);
    }
};

QTEST_MAIN(MonitorTest)
#include "MonitorTest.moc"
