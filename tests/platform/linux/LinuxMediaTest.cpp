// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxMedia.h"

#include "platform/posix/ChildProcess.h"
#include "platform/linux/FileTree.h"

#include <QStringList>
#include <QTest>

#include <csignal>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

std::optional<CommandAnswer> answerOf(const char *script, std::chrono::milliseconds limit)
{
    const auto deadline = ChildProcess::Clock::now() + limit;
    return ChildProcess({"/bin/sh", "-c", script}).answer(deadline);
}

bool isRunning(int id)
{
    QFile file(u"/proc/%1/stat"_s.arg(id));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

} // namespace

class LinuxMediaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksAnAwakeNode_data();
    void asksAnAwakeNode();
    void childSaysEverything();
    void childIsCutOff_data();
    void childIsCutOff();
    void childrenRunSideBySide();
    void lateChildIsEndedWithItsOwn();
};

void LinuxMediaTest::asksAnAwakeNode_data()
{
    QTest::addColumn<QByteArray>("files");
    QTest::addColumn<QString>("expected");

    const QByteArray program = "/usr/bin/vainfo: \n";
    const auto node = [](int number, const QByteArray &status) {
        const auto name = QByteArray("renderD") + QByteArray::number(number);
        return "/dev/dri/" + name + ": \n/sys/class/drm/" + name + "/device/power/runtime_status: " + status +
               '\n';
    };
    const auto asked = u"--display drm --device ROOT/dev/dri/renderD%1 "_s;
    QTest::newRow("active") << program + node(128, "active") << asked.arg(128);
    QTest::newRow("cannot sleep") << program + node(128, "unsupported") << asked.arg(128);
    QTest::newRow("the first that is awake")
        << program + node(130, "active") + node(128, "suspended") + node(129, "active") << asked.arg(129);
    QTest::newRow("one that may not be used, one that may")
        << program + node(129, "active") + "/sys/class/drm/renderD128/device/power/runtime_status: active\n"
        << asked.arg(129);
    QTest::newRow("asleep") << program + node(128, "suspended") << u"asleep"_s;
    QTest::newRow("not told whether asleep")
        << program + "/dev/dri/renderD128: \n/sys/class/drm/renderD128/dev: 226:128\n"
        << u"failed"_s;
    QTest::newRow("asleep and not installed") << node(128, "suspended") << u"not installed"_s;
    QTest::newRow("no render node") << program + "/sys/class/drm/card0/dev: 226:0\n" << u"no device"_s;
    QTest::newRow("nothing") << QByteArray() << u"failed"_s;
}

void LinuxMediaTest::asksAnAwakeNode()
{
    QFETCH(QByteArray, files);
    QFETCH(QString, expected);
    const FileTree tree(files);
    const auto root = QString::fromStdString(tree.root());
    if (tree.has(u"/usr/bin/vainfo"_s)) {
        // Answers with its arguments.
        tree.write(u"/usr/bin/vainfo"_s, "#!/bin/sh\nprintf '%s ' \"$@\"\n");
        QVERIFY(QFile::setPermissions(root + u"/usr/bin/vainfo"_s, QFile::ReadOwner | QFile::ExeOwner));
    }
    const auto answer = LinuxMedia(Files(tree.root())).vainfo();
    constexpr const char *reasons[] = {"no device", "not installed", "asleep", "failed"};
    const auto text = answer ? QString::fromStdString(answer->output)
                             : QString::fromLatin1(reasons[static_cast<std::size_t>(answer.error())]);
    QCOMPARE(text, expected.replace(u"ROOT"_s, root));
}

void LinuxMediaTest::childSaysEverything()
{
    qputenv("QUILLMARK_TEST_SECRET", "x");
    const auto answer =
        answerOf("echo error >&2; echo $LC_ALL$QUILLMARK_TEST_SECRET; read line || echo end; exit 3", 60s);
    QVERIFY(answer);
    QCOMPARE(answer->exitStatus, 3);
    QCOMPARE(answer->output, std::string("C\nend\nerror\n"));

    // More than a pipe holds, in both streams.
    const auto much = answerOf("head -c 300000 /dev/zero >&2; head -c 300000 /dev/zero", 60s);
    QVERIFY(much);
    QCOMPARE(much->output.size(), std::size_t{600000});
}

void LinuxMediaTest::childIsCutOff_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("late") << u"echo early; sleep 600"_s << 50;
    QTest::newRow("closes its streams and stays") << u"exec >&- 2>&-; sleep 600"_s << 50;
    QTest::newRow("leaves someone who keeps a stream open") << u"sleep 600 &"_s << 50;
    QTest::newRow("crashes") << u"echo early; kill -SEGV $$"_s << 60'000;
    QTest::newRow("talks without end") << u"yes"_s << 60'000;
}

void LinuxMediaTest::childIsCutOff()
{
    QFETCH(QString, script);
    QFETCH(int, milliseconds);
    QVERIFY(!answerOf(qPrintable(script), std::chrono::milliseconds(milliseconds)));
}

void LinuxMediaTest::childrenRunSideBySide()
{
    ChildProcess late({"/bin/sh", "-c", "sleep 600"});
    ChildProcess quick({"/bin/sh", "-c", "echo quick"});
    ChildProcess missing({"/nowhere/program"});
    const auto deadline = ChildProcess::Clock::now() + 2s;
    QVERIFY(!late.answer(deadline));
    QVERIFY(!missing.answer(deadline));
    const auto answer = quick.answer(deadline);
    QVERIFY(answer && answer->output == "quick\n");
}

void LinuxMediaTest::lateChildIsEndedWithItsOwn()
{
    const FileTree tree("/ids: \n");
    const auto path = tree.root() + "/ids";
    QList<QByteArray> ids;
    {
        ChildProcess child({"/bin/sh", "-c", "sleep 600 & echo $$ $! > " + path + "; wait"});
        const auto read = [&] {
            QFile file(QString::fromStdString(path));
            ids =
                file.open(QIODevice::ReadOnly) ? file.readAll().simplified().split(' ') : QList<QByteArray>();
            return ids.size() == 2;
        };
        QTRY_VERIFY(read());
        QVERIFY(isRunning(ids.at(0).toInt()) && isRunning(ids.at(1).toInt()));
    }
    QTRY_VERIFY(!isRunning(ids.at(0).toInt()) && !isRunning(ids.at(1).toInt()));
}

QTEST_GUILESS_MAIN(LinuxMediaTest)
#include "LinuxMediaTest.moc"
