// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/MenuBar.h"
#include "app/models/Place.h"
#include "app/monitorTexts.h"
#include "app/settingKeys.h"
#include "app/views/ContentView.h"
#include "app/views/MenuBarMonitorView.h"
#include "app/views/MonitorCard.h"
#include "app/views/MonitorView.h"
#include "app/widgets/ChartView.h"
#include "app/widgets/MonitorRowView.h"
#include "support/AppStage.h"
#include "support/offscreen.h"

#include <QLabel>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace quillmark;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

class MonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { support::failOnWarnings(); }

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

    void isNarrowInOneColumn()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        app::MonitorView view(stage.context);
        view.resize(900, 700);
        view.show();
        QTRY_VERIFY(stage.monitor.latest());
        const auto columns = [&view] {
            QSet<int> edges;
            for (const auto *card : view.findChildren<app::MonitorCard *>())
                edges += card->x();
            return edges.size();
        };
        QTRY_COMPARE(columns(), 2);
        view.resize(600, 700);
        QTRY_COMPARE(columns(), 1);
        view.resize(900, 700);
        QTRY_COMPARE(columns(), 2);
    }

    void rowsSayWhatTheyShow_data()
    {
        QTest::addColumn<monitor::MonitorSample>("sample");
        QTest::addColumn<QStringList>("lines");
        constexpr std::int64_t gigabyte = std::int64_t{1} << 30;
        monitor::MonitorSample calm{.cpuUsage = 0.234,
                                    .memoryUsed = 4 * gigabyte,
                                    .memoryTotal = 16 * gigabyte,
                                    .memoryPressure = 0.1,
                                    .networkInPerSecond = 1.24e6,
                                    .networkOutPerSecond = 0};
        QTest::newRow("no battery") << calm
                                    << QStringList{
                                           u"Processor: 23%"_s,         u"Memory: 25% (4 GB of 16 GB)"_s,
                                           u"Pressure: 10% (Normal)"_s, u"Swap: None"_s,
                                           u"Thermal state: Normal"_s,  u"Network: ↓ 1.24 MB/s  ↑ 0 KB/s"_s};
        auto strained = calm;
        strained.memoryPressure = 0.9;
        strained.swapUsed = 2 * gigabyte;
        strained.thermalState = monitor::ThermalState::Serious;
        strained.batteryLevel = 0.5;
        strained.isCharging = true;
        QTest::newRow("strained") << strained
                                  << QStringList{u"Processor: 23%"_s,
                                                 u"Memory: 25% (4 GB of 16 GB)"_s,
                                                 u"Pressure: 90% (Critical)"_s,
                                                 u"Swap: 2 GB"_s,
                                                 u"Battery · charging: 50%"_s,
                                                 u"Thermal state: Hot"_s,
                                                 u"Network: ↓ 1.24 MB/s  ↑ 0 KB/s"_s};
    }

    void rowsSayWhatTheyShow()
    {
        QFETCH(monitor::MonitorSample, sample);
        QFETCH(QStringList, lines);
        const monitor::MonitorModel model({&sample, 1}, sample);
        QStringList said;
        for (const auto &row : app::monitorRows(model, language::Formats(u"en"_s))) {
            auto line = row.line();
            said += line.remove(QChar(0x2068)).remove(QChar(0x2069)).replace(QChar::Nbsp, u' ');
        }
        QCOMPARE(said, lines);
    }

    void popUpWatchesWhileItIsOpen()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        QWidget host; // a window of its own would ask for more than this platform can do
        host.resize(400, 600);
        host.show();
        app::MenuBarMonitorView popUp(stage.context);
        popUp.setParent(&host, Qt::Widget);
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
        QTest::keyClick(host.focusWidget(), Qt::Key_Return);
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
};

QTEST_MAIN(MonitorTest)
#include "MonitorTest.moc"
