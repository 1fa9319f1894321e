// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/settingKeys.h"
#include "history/HistoryFile.h"
#include "support/Recordings.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

using namespace quillmark;
using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // ms

} // namespace

/// The program with its window, as a process of its own.
class ProgramTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;

    QString path(const QString &name) const { return m_home->filePath(name); }

    std::unique_ptr<QProcess> start() const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(m_environment);
        process->start(QStringLiteral(QUILLMARK_PROGRAM),
                       {u"app"_s, u"--machine"_s, support::sourcePath(u"machines/linux-laptop.json"_s),
                        u"--history"_s, path(u"history.json"_s)});
        return process;
    }

    bool hasSavedScan() const
    {
        const auto scans = history::HistoryFile(path(u"history.json"_s)).readDigests();
        return scans && scans->size() == 1;
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.remove(u"QT_FATAL_WARNINGS"_s); // Qt's screen for tests warns of itself
        for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_DATA_HOME"_s, u"XDG_RUNTIME_DIR"_s})
            m_environment.insert(name, m_home->path());
    }

    void endsAsItsUserWouldEndIt_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("end of the session") << SIGTERM;
        QTest::newRow("end of the terminal") << SIGHUP;
        QTest::newRow("interrupt") << SIGINT;
    }

    void endsAsItsUserWouldEndIt()
    {
        QFETCH(const int, signal);
        const auto program = start();
        QTRY_VERIFY_WITH_TIMEOUT(hasSavedScan(), patience);

        const auto another = start(); // has the first one come forward, and is done
        QVERIFY(another->waitForFinished(patience));
        QCOMPARE(another->exitStatus(), QProcess::NormalExit);
        QCOMPARE(another->exitCode(), 0);
        QCOMPARE(program->state(), QProcess::Running);

        QCOMPARE(::kill(static_cast<pid_t>(program->processId()), signal), 0);
        QVERIFY(program->waitForFinished(patience));
        QCOMPARE(program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(program->exitCode(), 0);
        QVERIFY(hasSavedScan());
#ifndef Q_OS_MACOS // where settings are not in a file of the home folder's
        const QSettings settings(path(u"Quillmark/Quillmark.conf"_s), QSettings::IniFormat);
        QVERIFY(settings.contains(app::keys::windowGeometry.name));
#endif
    }

#ifndef Q_OS_MACOS
    void saysThatThereIsNoDisplay()
    {
        for (const auto &name : {u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s})
            m_environment.remove(name);
        const auto program = start();
        QVERIFY(program->waitForFinished(patience));
        QCOMPARE(program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(program->exitCode(), 1);
        QCOMPARE(program->readAllStandardError(),
                 QByteArray("quillmark: no window can be opened: there is no display\n"));
    }
#endif
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
