// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QStringList>
#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

class LinuxDisplaysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connectors();
    void description();
    void noDisplays();
};

void LinuxDisplaysTest::connectors()
{
    FileTree files("/sys/class/drm/version: drm 1.1.0 20060810\n/sys/class/drm/card0/status: connected\n");
    const auto add = [&files](const char *name, const char *status, const char *enabled) {
        const QString path = u"/sys/class/drm/"_s + QString::fromLatin1(name);
        files.write(path + u"/status"_s, status);
        files.write(path + u"/enabled"_s, enabled);
    };
    add("card10-DP-1", "connected\n", "enabled\n");
    add("card2-DP-10", "connected\n", "enabled\n");
    add("card2-DP-9", "connected\n", "enabled\n");
    add("card2-HDMI-A-1", "connected\n", "disabled\n"); // lid closed, or switched off
    add("card2-HDMI-A-2", "disconnected\n", "enabled\n");
    add("card2-eDP-1", "connected\n", "enabled\n");
    add("card2-VGA-1", "unknown\n", "enabled\n");
    add("card2-VGA-x", "connected\n", "enabled\n");
    add("cardX-VGA-1", "connected\n", "enabled\n");
    add("renderD128-DP-1", "connected\n", "enabled\n");
    QStringList found;
    const auto displays = linuxMachine(files.root())->displays().displays();
    QVERIFY(displays);
    for (const DisplayReading &display : *displays) {
        found += QString::fromStdString(display.connector.value());
        QVERIFY(!display.edid && !display.isBuiltin && !display.localizedName);
    }
    QCOMPARE(found, QStringList({u"DP-9"_s, u"DP-10"_s, u"eDP-1"_s, u"DP-1"_s}));
}

void LinuxDisplaysTest::description()
{
    const FileTree files(
        "/sys/class/drm/card0-DP-1/status: connected\n/sys/class/drm/card0-DP-1/enabled: enabled\n");
    // Begins and ends with bytes that are white space or zero in a text, and is longer than a page.
    const QByteArray content = QByteArray("\0\n ", 3) + QByteArray(5000, '\xFE') + QByteArray(" \n\0", 3);
    const auto edid = [&files](const QByteArray &written) {
        files.write(u"/sys/class/drm/card0-DP-1/edid"_s, written);
        return linuxMachine(files.root())->displays().displays().value().front().edid;
    };
    const auto read = edid(content);
    QVERIFY(read);
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(read->data()), qsizetype(read->size())), content);
    QVERIFY(!edid({})); // as of a display that says nothing
}

void LinuxDisplaysTest::noDisplays()
{
    QVERIFY(!linuxMachine("/nonexistent")->displays().displays());
    const FileTree files("/sys/class/net/lo/type: 772\n");
    const auto displays = linuxMachine(files.root())->displays().displays();
    QVERIFY(displays && displays->empty());
}

QTEST_APPLESS_MAIN(LinuxDisplaysTest)
#include "LinuxDisplaysTest.moc"
