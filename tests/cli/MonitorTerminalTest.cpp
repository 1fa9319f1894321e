// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "TerminalSession.h"

#include <QTest>

#include <csignal>

namespace {

const QByteArray enter = "\x1b[?1049h\x1b[?25l";
const QByteArray leave = "\x1b[?25h\x1b[?1049l";

constexpr int exited = 0;

} // namespace

/// The live view in a real terminal: whatever ends or stops it, the terminal is as it was before.
class MonitorTerminalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ends_data();
    void ends();
    void otherKeysDoNotEnd();
    void followsResize();
    void stopsAndResumes();
    void resumesAfterStopWithoutNotice();
    void hangUp();
};

namespace {

struct Monitor : TerminalSession
{
    Monitor()
        : TerminalSession({QUILLMARK_PROGRAM, "monitor", "--machine",
                           QUILLMARK_SOURCE_DIR "/machines/macbook-pro-m3-max.json"},
                          80, 24)
    {}

    bool hasDrawn() { return waitFor(enter) && waitFor("Processor") && waitFor("14 cores"); }
};

} // namespace

void MonitorTerminalTest::ends_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("endedBy"); // a signal, or by itself
    QTest::newRow("q") << QByteArray("q") << 0 << exited;
    QTest::newRow("Esc") << QByteArray("\x1b") << 0 << exited;
    QTest::newRow("Ctrl-C") << QByteArray("\x03") << 0 << exited;
    QTest::newRow("interrupt") << QByteArray() << SIGINT << exited;
    QTest::newRow("termination") << QByteArray() << SIGTERM << SIGTERM;
    QTest::newRow("hang-up") << QByteArray() << SIGHUP << SIGHUP;
    QTest::newRow("Ctrl-\\") << QByteArray("\x1c") << 0 << SIGQUIT;
    QTest::newRow("crash") << QByteArray() << SIGABRT << SIGABRT;
}

void MonitorTerminalTest::ends()
{
    QFETCH(const QByteArray, keys);
    QFETCH(const int, signal);
    QFETCH(const int, endedBy);
    Monitor monitor;
    QVERIFY(monitor.hasDrawn());
    QVERIFY(monitor.attributes() != monitor.attributesBefore);
    if (signal != 0)
        ::kill(monitor.job, signal);
    else
        monitor.type(keys);
    const auto news = monitor.waitForNews();
    QVERIFY(news);
    QCOMPARE(WIFSIGNALED(*news) ? WTERMSIG(*news) : exited, endedBy);
    QVERIFY(WIFSIGNALED(*news) || WEXITSTATUS(*news) == 0);
    QCOMPARE(monitor.attributes(), monitor.attributesBefore);
    QVERIFY2(monitor.output.endsWith(leave), monitor.output.toPercentEncoding());
}

void MonitorTerminalTest::otherKeysDoNotEnd()
{
    Monitor monitor;
    QVERIFY(monitor.hasDrawn());
    monitor.type("\x1b[A x\x1bOP");
    QVERIFY(monitor.waitFor("Battery"));
    monitor.type("Q");
    QVERIFY(monitor.waitForNews() && monitor.output.endsWith(leave));
}

void MonitorTerminalTest::followsResize()
{
    Monitor monitor;
    QVERIFY(monitor.hasDrawn());
    monitor.resize(120, 40);
    QVERIFY(monitor.waitFor("\x1b[2J") && monitor.waitFor("\x1b[40;2H"));
}

void MonitorTerminalTest::stopsAndResumes()
{
    Monitor monitor;
    for (int round = 0; round < 2; ++round) {
        QVERIFY(monitor.hasDrawn());
        monitor.type("\x1a");
        const auto news = monitor.waitForNews();
        QVERIFY(news && WIFSTOPPED(*news));
        QVERIFY(monitor.output.endsWith(leave));
        QCOMPARE(monitor.attributes(), monitor.attributesBefore);
        monitor.output.clear();
        ::kill(monitor.job, SIGCONT);
    }
    QVERIFY(monitor.hasDrawn());
    QVERIFY(monitor.attributes() != monitor.attributesBefore);
    monitor.type("q");
    QVERIFY(monitor.waitForNews());
    QCOMPARE(monitor.attributes(), monitor.attributesBefore);
}

void MonitorTerminalTest::resumesAfterStopWithoutNotice()
{
    Monitor monitor;
    QVERIFY(monitor.hasDrawn());
    ::kill(monitor.job, SIGSTOP);
    const auto news = monitor.waitForNews();
    QVERIFY(news && WIFSTOPPED(*news));
    monitor.output.clear();
    ::kill(monitor.job, SIGCONT);
    QVERIFY(monitor.hasDrawn());
}

void MonitorTerminalTest::hangUp()
{
    Monitor monitor;
    QVERIFY(monitor.hasDrawn());
    monitor.hangUp();
    ::kill(monitor.job, SIGHUP); // as the shell does
    const auto news = monitor.waitForNews();
    QVERIFY(news && (WIFSIGNALED(*news) || WIFEXITED(*news)));
}

QTEST_APPLESS_MAIN(MonitorTerminalTest)
#include "MonitorTerminalTest.moc"
