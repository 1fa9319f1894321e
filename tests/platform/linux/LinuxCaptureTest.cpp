// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxCapture.h"

#include "platform/linux/FileTree.h"

#include <QStringList>
#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

QString cameras(const LinuxCapture &capture)
{
    const auto list = capture.cameras();
    QStringList names;
    for (const auto &camera : list.value_or(std::vector<CameraReading>()))
        names += u'\'' + QString::fromStdString(camera.localizedName) + u'\'';
    return list ? names.join(u", "_s) : u"not read"_s;
}

QString soundCards(const LinuxCapture &capture)
{
    const auto list = capture.soundCards();
    QStringList names;
    for (const auto &card : list.value_or(std::vector<SoundCard>()))
        names += QString::fromStdString(card.name) + u'/' + (card.playback ? u"out"_s : QString()) +
                 (card.capture ? u"in"_s : QString());
    return list ? names.join(u", "_s) : u"not read"_s;
}

} // namespace

class LinuxCaptureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsCamerasAndCards_data();
    void readsCamerasAndCards();
};

void LinuxCaptureTest::readsCamerasAndCards_data()
{
    QTest::addColumn<QByteArray>("files");
    QTest::addColumn<QString>("expectedCameras");
    QTest::addColumn<QString>("expectedCards");

    const auto video = [](const QByteArray &number, const QByteArray &index, const QByteArray &driver) {
        const auto node = "/sys/class/video4linux/video" + number;
        return node + "/name: Camera " + number + "\n" + node + "/index: " + index + "\n" + node +
               "/device/driver -> ../../drivers/" + driver + "\n";
    };
    QTest::newRow("several nodes and drivers")
        << video("10", "0", "uvcvideo") + video("2", "0", "uvcvideo") + video("3", "1", "uvcvideo") +
               video("4", "0", "v4l2 loopback") + "/sys/class/video4linux/v4l-subdev0/name: sensor\n" +
               "/sys/class/video4linux/video5/index: 0\n"
        << u"'Camera 2', 'Camera 10'"_s << u"not read"_s;
    QTest::newRow("a camera without a name")
        << QByteArray("/sys/class/video4linux/video0/index: 0\n"
                      "/sys/class/video4linux/video0/device/driver -> ../uvcvideo\n")
        << u"''"_s << u"not read"_s;
    QTest::newRow("cards") << QByteArray(
                                  "/proc/asound/cards:\n"
                                  " 0 [PCH            ]: HDA-Intel - HDA Intel - PCH\n"
                                  "                      HDA Intel PCH at 0xdf240000 irq 130\n"
                                  "10 [Headset        ]: USB-Audio - Headset: black\n"
                                  "                      Maker Headset at usb-0000:00:14.0-1, full speed\n"
                                  " 2 [Midi           ]: USB-Audio\n"
                                  "/proc/asound/pcm:\n"
                                  "00-00: ALC257 Analog : ALC257 Analog : playback 1 : capture 1\n"
                                  "00-03: HDMI 0 : HDMI 0 : playback 1\n"
                                  "10-00: USB Audio : USB Audio : capture 1\n"
                                  "11-00: gone : gone : playback 1\n")
                           << u"not read"_s << u"HDA Intel - PCH/outin, USB-Audio/, Headset: black/in"_s;
    QTest::newRow("no sound card")
        << QByteArray("/proc/asound/cards:\n--- no soundcards ---\n/sys/class/net/lo/type: 772\n")
        << QString() << QString();
    QTest::newRow("a kernel without sound")
        << QByteArray("/proc/stat: cpu 0\n") << u"not read"_s << QString();
    QTest::newRow("a container that hides the cards")
        << QByteArray("/proc/stat: cpu 0\n/proc/asound/version: hidden\n") << u"not read"_s << u"not read"_s;
    QTest::newRow("nothing") << QByteArray() << u"not read"_s << u"not read"_s;
}

void LinuxCaptureTest::readsCamerasAndCards()
{
    QFETCH(QByteArray, files);
    QFETCH(QString, expectedCameras);
    QFETCH(QString, expectedCards);
    const FileTree tree(files);
    const LinuxCapture capture{Files(tree.root())};
    QCOMPARE(cameras(capture), expectedCameras);
    QCOMPARE(soundCards(capture), expectedCards);
}

QTEST_APPLESS_MAIN(LinuxCaptureTest)
#include "LinuxCaptureTest.moc"
