// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "TerminalSession.h"

#include <QTest>

#include <csignal>

namespace {

const QByteArray enter = "\x1b[?1049h\x1b[?25l";
const QByteArray leave = "\x1b[?25h\x1b[?1049l";

/// A shell in which the live view is begun.
struct Monitor : TerminalSession
{
    Monitor()
        : TerminalSession(80, 24)
    {
        type("before=$(stty -g); " QUILLMARK_PROGRAM " monitor --machine " QUILLMARK_SOURCE_DIR
             "/machines/macbook-pro-m3-max.json\n");
    }

    bool hasBegun() { return waitFor(enter) && waitFor("Updated every second"); }

    /// Whether the shell has the terminal again, as it was, the program having ended with that status.
    /// Nothing was drawn after the screen was given back.
    bool isBack(int status)
    {
        if (!waitFor(leave))
            return false;
        type("echo end $?; [ $(stty -g) = $before ] && echo as before\n");
        const auto rest = waitFor("end " + QByteArray::number(status) + "\r\n");
        return rest && !rest->contains("\x1b[") && waitFor("as before\r\n");
    }
};

} // namespace

/// The live view in a real terminal: whatever ends or stops it, the terminal is as it was before.
class MonitorTerminalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ends_data();
    void ends();
    void otherKeysAndSizes();
    void stopsAndResumes();
    void endsWhileStopped();
    void hangUp();
};

void MonitorTerminalTest::ends_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("status");
    for (const char *keys : {"q", "\x1b", "\x03"})
        QTest::addRow("key %d", *keys) << QByteArray(keys) << 0 << 0;
    QTest::addRow("Ctrl-\\") << QByteArray("\x1c") << 0 << 128 + SIGQUIT;
    QTest::addRow("interrupt") << QByteArray() << SIGINT << 0;
    for (const int signal : {SIGTERM, SIGHUP, SIGABRT})
        QTest::addRow("signal %d", signal) << QByteArray() << signal << 128 + signal;
}

void MonitorTerminalTest::ends()
{
    QFETCH(const QByteArray, keys);
    QFETCH(const int, signal);
    QFETCH(const int, status);
    Monitor monitor;
    QVERIFY(monitor.hasBegun());
    if (signal != 0)
        ::kill(monitor.foreground(), signal);
    else
        monitor.type(keys);
    QVERIFY(monitor.isBack(status));
}

void MonitorTerminalTest::otherKeysAndSizes()
{
    Monitor monitor;
    QVERIFY(monitor.hasBegun());
    monitor.type("\x1b[A x\x1bOP");
    QVERIFY(monitor.waitFor("Battery"));
    monitor.resize(120, 40);
    QVERIFY(monitor.waitFor("\x1b[2J") && monitor.waitFor("\x1b[40;2H"));
    monitor.type("Q");
    QVERIFY(monitor.isBack(0));
}

void MonitorTerminalTest::stopsAndResumes()
{
    Monitor monitor;
    for (const bool byKey : {true, true, false}) {
        QVERIFY(monitor.hasBegun());
        const pid_t program = monitor.foreground();
        if (byKey)
            monitor.type("\x1a");
        else
            ::kill(program, SIGSTOP);
        QVERIFY(!byKey || monitor.waitFor(leave));
        QVERIFY(monitor.waitFor("Stopped"));
        monitor.type("fg\n");
    }
    QVERIFY(monitor.hasBegun());
    monitor.type("q");
    QVERIFY(monitor.isBack(0));
}

void MonitorTerminalTest::endsWhileStopped()
{
    Monitor monitor;
    QVERIFY(monitor.hasBegun());
    const pid_t program = monitor.foreground();
    monitor.type("\x1a");
    QVERIFY(monitor.waitFor(leave) && monitor.waitFor("Stopped"));
    // The shell looks after its jobs whenever it prompts.
    ::kill(program, SIGTERM);
    ::kill(program, SIGCONT);
    QTRY_VERIFY_WITH_TIMEOUT((monitor.type("\n"), ::kill(program, 0) != 0), 60000);
    const auto rest = monitor.waitFor("Terminated");
    QVERIFY(rest && !rest->contains("\x1b["));
}

void MonitorTerminalTest::hangUp()
{
    Monitor monitor;
    QVERIFY(monitor.hasBegun());
    QVERIFY(monitor.TerminalSession::hangUp());
}

QTEST_GUILESS_MAIN(MonitorTerminalTest)
#include "MonitorTerminalTest.moc"
