// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

CapabilitySection sectionOf(const platform::Machine &machine)
{
    return DeviceProbe::mediaSection(machine, language::Formats(u"en"_s));
}

QByteArray answer(int exitStatus, const QString &output)
{
    return QJsonDocument({{u"exitStatus"_s, exitStatus}, {u"output"_s, output}}).toJson();
}

} // namespace

class MediaSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesCodecsAndImages_data();
    void judgesCodecsAndImages();
    void readsVainfo_data();
    void readsVainfo();
};

void MediaSectionTest::judgesCodecsAndImages_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("software first, then hardware")
        << QByteArray(R"({"videoEncoders": [{"codecType": "hvc1"},
            {"codecType": "hvc1", "isHardwareAccelerated": true}, {"codecType": "hvc1"}]})")
        << QStringList{u"hevcEncoding | Hardware | supported"_s,
                       u"h264Encoding | Not supported | unsupported"_s,
                       u"h264Decoding | Not readable | info"_s};
    QTest::newRow("a flag that is missing or false")
        << QByteArray(R"({"videoEncoders": [{"codecType": "avc1"}, {"codecType": "av01",
            "isHardwareAccelerated": false}]})")
        << QStringList{u"h264Encoding | Software only | warning"_s,
                       u"av1Encoding | Software only | warning"_s};
    QTest::newRow("one kind of ProRes in hardware among several in software")
        << QByteArray(R"({"videoEncoders": [{"codecType": "apco"}, {"codecType": "apcn"},
            {"codecType": "ap4x", "isHardwareAccelerated": true}]})")
        << QStringList{u"proResEncoding | Hardware | supported"_s};
    QTest::newRow("a list without an entry")
        << QByteArray(R"({"videoEncoders": [], "videoDecoders": {"vp09": true, "av01": false}})")
        << QStringList{u"proResEncoding | Not supported | unsupported"_s,
                       u"vp9Decoding | Hardware | supported"_s,
                       u"av1Decoding | Not in hardware | unsupported"_s,
                       u"hevcDecoding | Not in hardware | unsupported"_s};
    QTest::newRow("images") << QByteArray(R"({"imageTypes": {"readable": ["public.avif"], "writable": []}})")
                            << QStringList{u"avifImages | Read only | supported"_s,
                                           u"heicImages | Not supported | unsupported"_s};
    QTest::newRow("images both ways")
        << QByteArray(R"({"imageTypes": {"readable": ["public.heic"], "writable": ["public.heic"]}})")
        << QStringList{u"heicImages | Read and write | supported"_s};
    QTest::newRow("vainfo says nothing of a Mac")
        << QByteArray(R"({"vainfo": {"exitStatus": 0, "output": "vainfo: Driver version: x"}})")
        << QStringList{u"h264Encoding | Not readable | info"_s};
}

void MediaSectionTest::judgesCodecsAndImages()
{
    QFETCH(QByteArray, changes);
    QFETCH(QStringList, expected);
    const auto section = sectionOf(*changedMachine(changes));
    QVERIFY(hasRows(section, expected));
    QCOMPARE(section.items.size(), 11);
}

void MediaSectionTest::readsVainfo_data()
{
    QTest::addColumn<QByteArray>("vainfo");
    QTest::addColumn<QString>("expected");

    const auto list = u"vainfo: Driver version: Mesa Gallium driver 22.3.6 for AMD Radeon\n"
                      "vainfo: Supported profile and entrypoints\n"
                      "      VAProfileHEVCMain               :\tVAEntrypointVLD\n"
                      "      VAProfileH264ConstrainedBaseline:\tVAEntrypointEncSlice\n"
                      "      VAProfileJPEGBaseline           :\tVAEntrypointVLD\n"
                      "      VAProfileVP9Profile2            :\tVAEntrypointVLD\n"
                      "      VAProfileHEVCMain               :\tVAEntrypointEncSliceLP\n"
                      "      VAProfileAV1Profile0            :\tVAEntrypointEncPicture\n"_s;
    const auto driver = u"videoDriver | Mesa Gallium driver 22.3.6 for AMD Radeon | info"_s;
    QTest::newRow("both kinds of encoders")
        << answer(0, list)
        << u"*h264Decoding | Not in hardware | unsupported; hevcDecoding | Hardware | supported; "
           "vp9Decoding | Not in hardware | unsupported; av1Decoding | Not in hardware | unsupported; "
           "h264Encoding | Hardware | supported; hevcEncoding | Hardware | supported; "
           "av1Encoding | Not in hardware | unsupported; "_s +
               driver;
    QTest::newRow("a driver that gives up within the list") << answer(1, list) << u'*' + driver;
    QTest::newRow("a driver that does not begin")
        << answer(3, u"libva info: va_openDriver() returns -1\nvaInitialize failed with error code -1\n"_s)
        << u"*videoDriver | Not readable | info"_s;
    QTest::newRow("no output") << answer(0, {}) << u"*videoDriver | Not readable | info"_s;
    QTest::newRow("no answer") << QByteArray("null") << u"*videoDriver | Not readable | info"_s;
    QTest::newRow("not installed") << QByteArray(R"({"noAnswer": "notInstalled"})")
                                   << u"*videoDriver | Not readable (vainfo is not installed) | info"_s;
    QTest::newRow("asleep") << QByteArray(R"({"noAnswer": "asleep"})")
                            << u"*videoDriver | Not readable (the GPU is asleep) | info"_s;
    QTest::newRow("no device") << QByteArray(R"({"noAnswer": "noDevice"})")
                               << u"*videoDriver | None | info"_s;
}

void MediaSectionTest::readsVainfo()
{
    QFETCH(QByteArray, vainfo);
    QFETCH(QString, expected);
    const auto machine = changedMachine(onLinux("\"vainfo\": " + vainfo));
    QVERIFY(hasRows(sectionOf(*machine), expected.split(u"; "_s)));
    QVERIFY(hasRows(sectionOf(*recordedAgain(*machine)), expected.split(u"; "_s)));
}

QTEST_APPLESS_MAIN(MediaSectionTest)
#include "MediaSectionTest.moc"
