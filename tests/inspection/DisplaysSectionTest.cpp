// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QTest>

#include <numeric>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

CapabilitySection sectionOf(const platform::Machine &machine)
{
    return DeviceProbe::displaysSection(machine, language::Formats(u"en"_s));
}

/// Whether the machine has these rows, and still has them when it comes back from a recording.
bool keepsRows(const platform::Machine &machine, const QString &expected)
{
    const auto again = sectionOf(*recordedAgain(machine));
    return hasRows(sectionOf(machine), expected.split(u'\n')) && hasRows(again, expected.split(u'\n'));
}

QByteArray connected(const QByteArray &connector, const QByteArray &edid)
{
    return onLinux(R"("displays": [{"connector": ")" + connector + R"(", "edid": {"hex": ")" + edid.toHex() +
                   R"("}}])");
}

/// The content as a block of an EDID, filled up with zeros, its checksum right.
QByteArray block(QByteArray content)
{
    content.append(127 - content.size(), '\0');
    const auto sum = std::accumulate(content.begin(), content.end(), 0,
                                     [](int all, char byte) { return all + static_cast<uchar>(byte); });
    return content + static_cast<char>(-sum);
}

const QByteArray fullHD =
    QByteArray::fromHex("023a801871382d40582c450012222100001e"); // 148.5 MHz, 530 mm × 290 mm
const QByteArray fullHDInterlaced = QByteArray::fromHex("011d8018711c1620582c250012222100009e"); // 74.25 MHz

QByteArray text(char tag, const QByteArray &words)
{
    return QByteArray("\0\0\0", 3) + tag + '\0' + (words + '\n').leftJustified(13, ' ');
}

const QByteArray named = text('\xFC', "LG HDR 4K");

QByteArray base(const QByteArray &descriptors, int extensions = 0,
                const QByteArray &centimetres = QByteArray("\0\0", 2))
{
    const auto head =
        QByteArray::fromHex("00ffffffffffff001e6d0177") + "SNO!" + QByteArray::fromHex("011f0104b5");
    auto content = (head + centimetres).leftJustified(54, '\0') + descriptors;
    return block(content.leftJustified(126, '\0') + static_cast<char>(extensions));
}

QByteArray cta(const QByteArray &dataBlocks, const QByteArray &descriptors = {}, char revision = 3)
{
    return block(QByteArray("\x02") + revision + static_cast<char>(4 + dataBlocks.size()) + '\0' +
                 dataBlocks + descriptors);
}

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

class DisplaysSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void macs_data();
    void macs();
    void descriptions_data();
    void descriptions();
    void severalDisplays();
    void recordingLeavesOutNames();
    void recordingHasNoSerialNumber();
};

void DisplaysSectionTest::macs_data()
{
    QTest::addColumn<QByteArray>("displays");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &displays, const QString &expected) {
        QTest::newRow(name) << QByteArray(R"({"displays": )" + displays + "}") << expected;
    };
    const auto display = [&row](const char *name, const QByteArray &members, const QString &expected) {
        row(name, "[{" + members + "}]", expected);
    };
    row("closed lid", "[]", u"*displayCount | None | info"_s);
    row("no list", "null", u"*displayCount | Not readable | info"_s);
    display("nothing answered", "", u"*displayCount | 1 | info\ndisplay.1 | Not readable | info"_s);
    display("asleep",
            R"("isBuiltin": true, "pixelWidth": 3024, "pixelHeight": 1964, "width": 1512, "height": 982,
                         "screenSize": [301.6, 195.9])",
            u"*displayCount | 1 | info\ndisplay.1 | Not readable | info\ndisplay.1.resolution | 3024 × 1964 "
            u"| info\n"
            "display.1.scaling | 2× (looks like 1512 × 982) | info\n"
            "display.1.size | 14.2 in, 254 pixels per inch | info"_s);
    display("all tags", R"("localizedName": "A", "isInMirrorSet": true, "isMain": true, "isBuiltin": true)",
            u"display.1 | A (built in, main, and mirrored) | info"_s);
    display("no tags", R"("localizedName": "A")", u"display.1 | A | info"_s);

    const auto mode = [&display](const char *name, const QByteArray &members, const QString &text) {
        display(name, R"("pixelWidth": 5120, "pixelHeight": 2880, )" + members,
                u"display.1.resolution | %1 | info"_s.arg(text));
    };
    mode("rate of the mode", R"("refreshRate": 59.9401, "maximumFramesPerSecond": 60)",
         u"5120 × 2880, 59.94 Hz"_s);
    mode("rate that is whole but for rounding", R"("refreshRate": 60.000004)", u"5120 × 2880, 60 Hz"_s);
    mode("rate of the screen", R"("refreshRate": 0, "maximumFramesPerSecond": 75)", u"5120 × 2880, 75 Hz"_s);
    mode("no rate", R"("refreshRate": 0, "maximumFramesPerSecond": 0)", u"5120 × 2880"_s);
    mode("a rate that no display has", R"("refreshRate": 1e9)", u"5120 × 2880"_s);
    mode("a rate below 0", R"("refreshRate": -1, "maximumFramesPerSecond": 60)", u"5120 × 2880"_s);
    mode("a rate that varies",
         R"("refreshRate": 144, "minimumRefreshInterval": 0.00694, "maximumRefreshInterval": 0.025)",
         u"5120 × 2880, up to 144 Hz"_s);
    display("no size", R"("pixelWidth": 0, "pixelHeight": 1080, "refreshRate": 60)",
            u"display.1.resolution absent"_s);
    display("not doubled", R"("pixelWidth": 1920, "pixelHeight": 1080, "width": 1920, "height": 1080)",
            u"display.1.scaling | 1× | info"_s);
    display("no points", R"("pixelWidth": 1920, "pixelHeight": 1080, "width": 0, "height": 0)",
            u"display.1.scaling absent"_s);

    const auto intervals = [&display](const char *name, const char *least, const char *greatest,
                                      bool isBuiltIn, const QString &expected) {
        display(name,
                QByteArray(R"("minimumRefreshInterval": )") + least + R"(, "maximumRefreshInterval": )" +
                    greatest + R"(, "isBuiltin": )" + (isBuiltIn ? "true" : "false"),
                u"display.1.variableRefresh "_s + expected);
    };
    intervals("ProMotion", "0.008333", "0.041667", true, u"| 24 to 120 Hz (ProMotion) | supported"_s);
    intervals("slower than ProMotion", "0.0091", "0.041667", true, u"| 24 to 110 Hz | supported"_s);
    intervals("fast monitor", "0.004167", "0.020833", false, u"| 48 to 240 Hz | supported"_s);
    intervals("fixed, built in", "0.016667", "0.016667", true, u"| Fixed | unsupported"_s);
    intervals("fixed monitor", "0.016667", "0.016667", false, u"| Fixed | info"_s);
    intervals("as good as the same", "0.016667", "0.016757", true, u"| Fixed | unsupported"_s);
    intervals("just different", "0.016", "0.0163", true, u"| 61 to 63 Hz | supported"_s);
    intervals("one interval alone", "0", "0.016667", true, u"absent"_s);
    intervals("an interval that no display has", "0.016667", "3600", true, u"absent"_s);

    const auto range = [&display](const char *name, const char *value, const char *isBuiltIn,
                                  const QString &expected) {
        display(name,
                QByteArray(R"("maximumPotentialExtendedDynamicRangeColorComponentValue": )") + value +
                    R"(, "isBuiltin": )" + isBuiltIn,
                u"display.1.extendedRange "_s + expected);
    };
    range("range", "16", "true", u"| Up to 16× | supported"_s);
    range("a little", "1.01", "true", u"| Up to 1.01× | supported"_s);
    range("none, built in", "1.0", "true", u"| Not supported | unsupported"_s);
    range("none but for rounding", "1.0000001", "true", u"| Not supported | unsupported"_s);
    range("none in a monitor", "1", "false", u"| Not supported | info"_s);
    range("darker than white", "0", "true", u"absent"_s);
    range("not told", "null", "true", u"absent"_s);
    display("sRGB, built in", R"("canRepresentP3": false, "isBuiltin": true)",
            u"display.1.wideColor | sRGB | unsupported"_s);
    display("sRGB in a monitor", R"("canRepresentP3": false)", u"display.1.wideColor | sRGB | info"_s);
    display("P3 in a monitor", R"("canRepresentP3": true)",
            u"display.1.wideColor | Display P3 | supported"_s);

    const auto size = [&display](const char *name, const char *sides, const QString &expected) {
        display(name, QByteArray(R"("screenSize": )") + sides, u"display.1.size "_s + expected);
    };
    size("size alone", "[596.7, 335.7]", u"| 27 in | info"_s);
    size("smallest", "[76.2, 1]", u"| 3 in | info"_s);
    size("too small", "[76, 1]", u"absent"_s);
    size("largest", "[3047, 1]", u"| 120 in | info"_s);
    size("too large", "[3049, 1]", u"absent"_s);
    size("not known", "[0, 0]", u"absent"_s);
    size("one side alone", "[600, 0]", u"absent"_s);
}

void DisplaysSectionTest::macs()
{
    QFETCH(const QByteArray, displays);
    QFETCH(const QString, expected);
    QVERIFY(keepsRows(*changedMachine(displays), expected));
}

void DisplaysSectionTest::descriptions_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &edid, const QString &expected,
                        const QByteArray &connector = "HDMI-A-1") {
        QTest::newRow(name) << connected(connector, edid) << expected;
    };
    const QString unread =
        u"*displayCount | 1 | info\ndisplay.1 | Not readable | info\ndisplay.1.connection | HDMI | info"_s;
    const auto good = base(fullHD + named);
    row("128 bytes", good,
        u"*displayCount | 1 | info\ndisplay.1 | LG HDR 4K | info\ndisplay.1.resolution | 1920 × 1080, 60 Hz "
        u"| info\n"
        "display.1.extendedRange | Not supported | info\ndisplay.1.wideColor | Not supported | info\n"
        "display.1.size | 23.8 in, 93 pixels per inch | info\ndisplay.1.connection | HDMI | info"_s);
    row("empty", {}, unread);
    row("truncated", good.first(127), unread);
    row("wrong checksum", good.first(127) + static_cast<char>(good.back() + 1), unread);
    row("no header", block(QByteArray(54, '\1') + fullHD), unread);
    row("of zeros", QByteArray(256, '\0'), unread);

    row("interlaced", base(fullHDInterlaced), u"display.1.resolution | 1920 × 1080, 60 Hz | info"_s);
    row("the timing comes last", base(named + text('\xFF', "S") + text('\xFE', "T") + fullHD),
        u"display.1.resolution | 1920 × 1080, 60 Hz | info"_s);
    row("no timing", base(named, 0, "\x35\x1E"),
        u"display.1.resolution absent\ndisplay.1.size | 24 in | info"_s);
    row("a ratio instead of a size", base(named, 0, QByteArray("\x4F\0", 2)), u"display.1.size absent"_s);
    row("a timing of nothing", base(QByteArray(17, '\1').append(1, '\0').replace(2, 6, QByteArray(6, '\0'))),
        u"display.1.resolution absent"_s);
    row("a name of 13 letters", base(fullHD + text('\xFC', "ABCDEFGHIJKLM").first(18)),
        u"display.1 | ABCDEFGHIJKLM | info"_s);
    row("a name that cannot be read", base(fullHD + text('\xFC', "\x01\x07 ")),
        u"display.1 | Not readable | info"_s);

    const auto traits = [&row](const char *name, const QByteArray &extensions, const QString &range,
                               const QString &color, int announced = -1,
                               const QByteArray &connector = "DP-2") {
        const int count = announced < 0 ? static_cast<int>(extensions.size() / 128) : announced;
        row(name, base(fullHD, count) + extensions,
            u"display.1.extendedRange "_s + range + u"\ndisplay.1.wideColor "_s + color, connector);
    };
    const QString yes = u"| Supported | supported"_s;
    const QString no = u"| Not supported | info"_s;
    const QString lack = u"| Not supported | unsupported"_s;
    const QString absent = u"absent"_s;
    const auto video = hex("43900403");
    const auto pq = hex("e20605");
    traits("PQ", cta(video + pq), yes, no);
    traits("HLG", cta(hex("e3060801")), yes, no);
    traits("older kinds of range alone", cta(hex("e30603ff")), no, no);
    traits("BT.2020", cta(hex("e3052000")), no, yes);
    traits("DCI-P3", cta(hex("e3050080") + pq), yes, yes);
    traits("other colours alone", cta(hex("e3051f7f")), no, no);
    traits("colorimetry cut short", cta(hex("e20580")), no, yes);
    traits("the same bytes in a block of audio", cta(hex("230680800000")), no, no);
    traits("built in without them", cta(video), lack, lack, -1, "eDP-1");
    traits("built in without an extension", {}, lack, lack, -1, "LVDS-1");
    traits("before there were data blocks", cta(pq, {}, 1), no, no);
    traits("an extension that is missing", {}, absent, absent, 1);
    traits("an extension cut short", cta(pq).first(100), absent, absent, 1);
    traits("a damaged extension", cta(video + pq).replace(6, 1, "\x11"), absent, absent);
    traits("another kind of extension", block("\x70\x20"), absent, absent);
    traits("another kind, and one that says it", block("\x70\x20") + cta(pq), yes, absent);
    traits("a block beyond its extension", cta(hex("ff0605")), absent, absent);
    traits("a map of the extensions", block(hex("f002")) + cta(pq), yes, no);

    const auto connection = [&row](const QByteArray &connector, const QString &text) {
        row(connector, base(fullHD), u"display.1.connection | %1 | info"_s.arg(text), connector);
    };
    connection("DP-1", u"DisplayPort"_s);
    connection("HDMI-B-2", u"HDMI"_s);
    connection("DVI-I-1", u"DVI"_s);
    connection("VGA-1", u"VGA"_s);
    connection("eDP-1", u"Internal"_s);
    connection("DSI-1", u"Internal"_s);
    connection("Virtual-1", u"Virtual-1"_s);
    row("tag", base(fullHD + named), u"display.1 | LG HDR 4K (built in) | info"_s, "LVDS-1");

    QTest::newRow("no displays") << onLinux(R"("displays": [])") << u"*displayCount | None | info"_s;
    QTest::newRow("nothing told") << onLinux(R"("displays": null)")
                                  << u"*displayCount | Not readable | info"_s;
    QTest::newRow("a display that says nothing")
        << onLinux(R"("displays": [{"connector": "VGA-1"}])")
        << u"*displayCount | 1 | info\ndisplay.1 | Not readable | info\ndisplay.1.connection | VGA | info"_s;
}

void DisplaysSectionTest::descriptions()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, expected);
    QVERIFY(keepsRows(*changedMachine(changes), expected));
}

void DisplaysSectionTest::severalDisplays()
{
    QByteArray displays = R"([{"localizedName": "A", "pixelWidth": 1920, "pixelHeight": 1080})";
    const auto with = [&displays](qsizetype others) {
        const auto all = displays + QByteArray(",{}").repeated(others) + "]";
        return changedMachine(R"({"displays": )" + all + "}");
    };
    QStringList labels;
    const auto section = sectionOf(*with(1));
    for (const auto &item : section.items)
        labels += item.label;
    QCOMPARE(labels, QStringList({u"Displays connected"_s, u"Display 1"_s, u"Resolution (display 1)"_s,
                                  u"Display 2"_s}));
    QCOMPARE(sectionOf(*with(0)).items.size(), 3);
    QCOMPARE(sectionOf(*with(15)).items.size(), 18);
    QVERIFY(
        hasRows(sectionOf(*with(16)),
                QString(u"displayCount | 17 | info\ndisplay.16 | Not readable | info\ndisplay.17 absent"_s)
                    .split(u'\n')));
    QCOMPARE(sectionOf(*with(16)).items.size(), 18);
}

/// A picture sent to somebody's television or tablet: it has no size, and its owner named it.
void DisplaysSectionTest::recordingLeavesOutNames()
{
    const auto machine =
        changedMachine(R"({"displays": [{"localizedName": "Ada’s iPad", "screenSize": [0, 0]},
        {"localizedName": "LG HDR 4K", "screenSize": [600, 340]}, {"localizedName": "iMac", "isBuiltin": true}]})");
    const auto products = u"display.2 | LG HDR 4K | info\ndisplay.3 | iMac (built in) | info"_s;
    QVERIFY(hasRows(sectionOf(*recordedAgain(*machine, platform::RecordedNames::LeaveOut)),
                    QString(u"display.1 | Not readable | info\n"_s + products).split(u'\n')));
    QVERIFY(hasRows(sectionOf(*recordedAgain(*machine)),
                    QString(u"display.1 | Ada’s iPad | info\n"_s + products).split(u'\n')));
}

void DisplaysSectionTest::recordingHasNoSerialNumber()
{
    // Written wherever a display may carry one: as a number, as text, in a maker's own data blocks, behind
    // them, and in an extension of another kind.
    const auto serial = text('\xFF', "SNO!");
    const auto vendor = hex("690c0300") + "SNO!" + "xx";
    const auto vendorVideo = hex("e801123456") + "SNO!";
    const auto extension = cta(hex("e20605") + vendor + vendorVideo, serial + fullHDInterlaced + "SNO!");
    const QByteArray content = base(fullHD + named + serial + text('\xFE', "SNO!"), 3) + extension +
                               block("\x70SNO!") + block(QByteArray("\x02\x03\xFF\x00", 4) + "SNO!") + "SNO!";
    QVERIFY(content.count("SNO!") >= 9);

    const auto machine = changedMachine(connected("DP-1", content));
    const auto again = recordedAgain(*machine);
    const auto edid = again->displays().displays().value().front().edid.value();
    const auto kept =
        QByteArray(reinterpret_cast<const char *>(edid.data()), static_cast<qsizetype>(edid.size()));
    QCOMPARE(kept.size(), 512);
    QVERIFY2(!kept.contains("SNO!"), kept.toHex(' '));
    QVERIFY(kept.contains(fullHD) && kept.contains(hex("0c0300")));
    QVERIFY(sameLines(rows(sectionOf(*again)), rows(sectionOf(*machine))));
    for (qsizetype place = 0; place < kept.size(); place += 128)
        QCOMPARE(block(kept.mid(place, 127)), kept.mid(place, 128));

    // What was damaged stays so: a recording that is sounder than its machine would answer otherwise.
    auto damaged = content;
    damaged[127] = static_cast<char>(damaged[127] + 1);
    const auto unread = changedMachine(connected("DP-1", damaged));
    QVERIFY(hasRows(sectionOf(*recordedAgain(*unread)),
                    QString(u"display.1 | Not readable | info\ndisplay.1.resolution absent"_s).split(u'\n')));
    const auto other = changedMachine(connected("DP-1", "SNO!" + content));
    QVERIFY(!recordMachine(*other, platform::RecordedNames::Keep).contains("\"edid\""));
}

QTEST_GUILESS_MAIN(DisplaysSectionTest)
#include "DisplaysSectionTest.moc"
