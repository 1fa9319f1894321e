// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "platform/recorded/recordMachine.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

CapabilitySection sectionOf(const platform::Machine &machine, const QString &language = u"en"_s)
{
    return DeviceProbe::cameraAudioSection(machine, language::Formats(language));
}

QByteArray camera(const QByteArray &type, const QByteArray &formats = {})
{
    return R"({"cameras": [{"localizedName": "Eye", "deviceType": ")" + type + R"(", "formats": [)" +
           formats + "]}]}";
}

/// A machine with one audio device, the default both ways.
QByteArray audio(const QByteArray &members)
{
    return R"({"audioDevices": [{"id": 7, "name": "Device", )" + members +
           R"(}], "audioDefaults": {"input": 7, "output": 7}})";
}

QByteArray withBattery(QByteArray changes)
{
    changes.chop(1);
    return changes + R"(, "powerSources": [{"Type": "InternalBattery"}]})";
}

} // namespace

class CameraAudioSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judges_data();
    void judges();
    void writesNumbersInTheLanguage();
    void countsAtMostSixteen();
    void hidesNamesOfPeople();
};

void CameraAudioSectionTest::judges_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QStringList>("expected");

    // Cameras
    QTest::newRow("no camera") << QByteArray(R"({"cameras": []})") << QStringList{u"camera | None | info"_s};
    QTest::newRow("the largest area, and of that the highest rate")
        << camera("External", R"({"width": 640, "height": 480, "maxFrameRate": 120},
                                 {"width": 1920, "height": 1080, "maxFrameRate": 59.94},
                                 {"width": 1920, "height": 1080, "maxFrameRate": 30},
                                 {"width": 2000, "height": 500, "maxFrameRate": 240})")
        << QStringList{u"camera.1 | Eye (external) | supported"_s,
                       u"camera.1.bestPicture | 1920 × 1080, up to 59.94 frames per second | info"_s,
                       u"camera.1.centerStage | Not readable | info"_s};
    QTest::newRow("a rate that is not quite whole, and one that is missing")
        << camera("BuiltInWideAngleCamera", R"({"width": 1280, "height": 720, "maxFrameRate": 30.00003},
                                               {"width": 0, "height": 4000, "maxFrameRate": 1})")
        << QStringList{u"camera.1 | Eye (built in) | supported"_s,
                       u"camera.1.bestPicture | 1280 × 720, up to 30 frames per second | info"_s};
    QTest::newRow("no rate") << camera("External", R"({"width": 1280, "height": 720})")
                             << QStringList{u"camera.1.bestPicture | 1280 × 720 | info"_s};
    QTest::newRow("no formats") << camera("External") << QStringList{u"camera.1.bestPicture absent"_s};
    const QByteArray some = R"({"width": 1, "height": 1, "isCenterStageSupported": false},
                               {"width": 1, "height": 1, "isCenterStageSupported": true})";
    const QByteArray none = R"({"width": 1, "height": 1, "isCenterStageSupported": false})";
    QTest::newRow("Center Stage in one format")
        << camera("BuiltInWideAngleCamera", some)
        << QStringList{u"camera.1.centerStage | Supported | supported"_s};
    QTest::newRow("no Center Stage, built in")
        << camera("BuiltInWideAngleCamera", none)
        << QStringList{u"camera.1.centerStage | Not supported | unsupported"_s};
    QTest::newRow("no Center Stage, external")
        << camera("ExternalUnknown", none)
        << QStringList{u"camera.1 | Eye (external) | supported"_s,
                       u"camera.1.centerStage | Not supported | info"_s};
    QTest::newRow("before Center Stage")
        << camera("BuiltInWideAngleCamera", none)
               .replace("{\"cameras", R"({"operatingSystem": {"major": 12, "minor": 2}, "cameras)")
        << QStringList{u"camera.1.centerStage absent"_s};
    QTest::newRow("access") << QByteArray(R"({"authorization": {"video": 2, "audio": 9}})")
                            << QStringList{u"cameraAccess | Denied | info"_s,
                                           u"microphoneAccess | Unknown | info"_s};

    // Audio
    QTest::newRow("built in") << audio(
                                     R"("transport": "bltn", "outputChannels": 2, "nominalSampleRate": 44100,
                                          "availableSampleRates": [[8000, 88200.0], [44100, 44100]])")
                              << QStringList{u"builtInSpeakers | Available | supported"_s,
                                             u"builtInMicrophone | None (desktop) | info"_s,
                                             u"soundOutput | Device | info"_s,
                                             u"outputFormat | 44.1 kHz, 2 channels | info"_s,
                                             u"highestOutputRate | 88.2 kHz | info"_s};
    const auto usb = audio(R"("transport": "usb ", "inputChannels": 1, "outputChannels": 6,
                              "nominalSampleRate": 192000, "availableSampleRates": [[192000, 192000]])");
    QTest::newRow("a portable without")
        << withBattery(usb)
        << QStringList{u"builtInSpeakers | None | unsupported"_s, u"builtInMicrophone | None | unsupported"_s,
                       u"outputFormat | 192 kHz, 6 channels | info"_s, u"highestOutputRate absent"_s};
    QTest::newRow("a desktop without") << usb
                                       << QStringList{u"builtInSpeakers | None (desktop) | info"_s,
                                                      u"builtInMicrophone | None (desktop) | info"_s};
    QTest::newRow("a portable with") << withBattery(audio(R"("transport": "bltn", "inputChannels": 1)"))
                                     << QStringList{u"builtInMicrophone | Available | supported"_s,
                                                    u"builtInSpeakers | None | unsupported"_s,
                                                    u"highestOutputRate absent"_s};
    QTest::newRow("a call")
        << audio(R"("transport": "blue", "outputChannels": 1, "nominalSampleRate": 24000)")
        << QStringList{u"outputFormat | 24 kHz, 1 channel (call quality: a microphone is in use) | warning"_s,
                       u"soundOutput | Bluetooth device | info"_s};
    QTest::newRow("music") << audio(R"("transport": "blue", "outputChannels": 2, "nominalSampleRate": 32000)")
                           << QStringList{u"outputFormat | 32 kHz, 2 channels | info"_s};
    QTest::newRow("slow, but no Bluetooth")
        << audio(R"("transport": "usb ", "outputChannels": 1, "nominalSampleRate": 8000)")
        << QStringList{u"outputFormat | 8 kHz, 1 channel | info"_s};
    QTest::newRow("no defaults") << QByteArray(R"({"audioDefaults": {"input": 0, "output": 0}})")
                                 << QStringList{u"soundOutput | None | info"_s, u"soundInput | None | info"_s,
                                                u"outputFormat absent"_s,
                                                u"builtInSpeakers | Not readable | info"_s};
    QTest::newRow("a default that has vanished")
        << QByteArray(R"({"audioDevices": [], "audioDefaults": {"input": 0, "output": 5}})")
        << QStringList{u"soundOutput | Not readable | info"_s, u"outputFormat | Not readable | info"_s};
    QTest::newRow("a device without name and rate")
        << audio(R"("outputChannels": 2, "name": null)")
        << QStringList{u"soundOutput | Not readable | info"_s, u"outputFormat | Not readable | info"_s};

    // Linux
    QTest::newRow("sound cards") << QByteArray(R"({"operatingSystem": {"name": "Debian GNU/Linux"},
            "cameras": [{"localizedName": "Eye"}, {"localizedName": ""}],
            "soundCards": [{"name": "PCH", "playback": true, "capture": true}, {"name": "HDMI", "playback": true},
                           {"name": "Idle"}]})")
                                 << QStringList{u"camera.1 | Eye | supported"_s,
                                                u"camera.2 | Not readable | info"_s,
                                                u"camera.1.centerStage absent"_s,
                                                u"cameraAccess absent"_s,
                                                u"soundCard.1 | PCH (output and input) | supported"_s,
                                                u"soundCard.2 | HDMI (output) | supported"_s,
                                                u"soundCard.3 | Idle | supported"_s,
                                                u"soundOutput absent"_s};
    QTest::newRow("no sound card")
        << QByteArray(R"({"operatingSystem": {"name": "Debian GNU/Linux"}, "soundCards": []})")
        << QStringList{u"soundCard | None | info"_s};
}

void CameraAudioSectionTest::judges()
{
    QFETCH(QByteArray, changes);
    QFETCH(QStringList, expected);
    QVERIFY(hasRows(sectionOf(*changedMachine(changes)), expected));
}

void CameraAudioSectionTest::writesNumbersInTheLanguage()
{
    const auto machine = changedMachine(audio(R"("outputChannels": 2, "nominalSampleRate": 44100)"));
    QVERIFY(hasRows(sectionOf(*machine, u"de"_s), {u"outputFormat | 44,1 kHz, 2 channels | info"_s}));
}

void CameraAudioSectionTest::countsAtMostSixteen()
{
    QByteArray list = R"({"localizedName": "C", "formats": [{"width": 4, "height": 3}]})";
    list = "[" + (list + ",").repeated(19) + list + "]";
    const auto section = sectionOf(*changedMachine("{\"cameras\": " + list + "}"));
    QVERIFY(hasRows(section, {u"camera.16 | C | supported"_s}));
    QVERIFY(hasRows(section, {u"camera.17 absent"_s}));
    const auto labels = lines(section).mid(4, 3).join(u'\n');
    QCOMPARE(labels, u"camera.2 | Camera 2 | C | supported\n"
                     "camera.2.bestPicture | Best picture (camera 2) | 4 × 3 | info\n"
                     "camera.2.centerStage | Center Stage (camera 2) | Not readable | info"_s);
}

void CameraAudioSectionTest::hidesNamesOfPeople()
{
    const auto device = [](int id, const QByteArray &transport) {
        return R"({"id": )" + QByteArray::number(id) +
               R"(, "name": "Ada's device", "outputChannels": 2, "transport": ")" + transport + "\"}";
    };
    const QByteArrayList transports = {"blue", "blea", "airp", "ccwd", "ccwl"};
    for (const auto &transport : transports) {
        const auto machine = changedMachine(
            R"({"cameras": [{"localizedName": "Ada's camera", "deviceType": "ContinuityCamera"},
                            {"localizedName": "Ada's desk", "deviceType": "DeskViewCamera"}],
                "audioDefaults": {"input": 1, "output": 1}, "audioDevices": [)" +
            device(1, transport) + "]}");
        QVERIFY2(!lines(sectionOf(*machine)).join(u'\n').contains(u"Ada"), transport.constData());
        for (const auto names : {platform::RecordedNames::LeaveOut, platform::RecordedNames::Keep})
            QVERIFY2(platform::recordMachine(*machine, names).find("Ada") == std::string::npos,
                     transport.constData());
    }
    // What people put together and name themselves is theirs to show, and to keep.
    const auto machine = changedMachine(R"({"audioDefaults": {"input": 1, "output": 1}, "audioDevices": [)" +
                                        device(1, "grup") + "]}");
    QVERIFY(hasRows(sectionOf(*machine), {u"soundOutput | Ada's device | info"_s}));
    QVERIFY(platform::recordMachine(*machine, platform::RecordedNames::LeaveOut).find("Ada") ==
            std::string::npos);
    QVERIFY(hasRows(sectionOf(*recordedAgain(*machine, platform::RecordedNames::Keep)),
                    {u"soundOutput | Ada's device | info"_s}));
}

QTEST_APPLESS_MAIN(CameraAudioSectionTest)
#include "CameraAudioSectionTest.moc"
