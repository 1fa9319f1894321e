// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/RecordedMachine.h"

#include "platform/recorded/recordMachine.h"
#include "support/Recordings.h"

#include <QTemporaryDir>
#include <QTest>

using namespace quillmark;
using namespace quillmark::platform;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

/// Why the text is no recording, without the name of the file; "" when it is one.
QString faultOf(const QByteArray &text)
{
    const auto machine = parseRecording(view(text), "name.json");
    if (machine)
        return {};
    const auto sentence = QString::fromStdString(machine.error().text);
    return sentence.startsWith(u"name.json: "_s) ? sentence.mid(11)
                                                 : u"(the file is not named) "_s + sentence;
}

/// The least recording that there is, with a member more.
QByteArray leastWith(const QByteArray &member)
{
    return R"({"format": "quillmark-machine-1", "operatingSystem": {"name": "macOS", "major": 15}, )" +
           member + "}";
}

QString hexadecimal(const std::optional<Bytes> &bytes)
{
    if (!bytes)
        return u"none"_s;
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(bytes->data()), static_cast<qsizetype>(bytes->size()))
            .toHex());
}

/// The reading in one line.
QString shown(const CounterReading &reading)
{
    QStringList parts;
    parts += reading.date ? QString::number(reading.date->time_since_epoch().count()) : u"now"_s;
    QString ticks = u"none"_s;
    if (reading.processorTicks) {
        ticks = u"ticks"_s;
        for (const auto &core : *reading.processorTicks)
            ticks += u" %1/%2/%3/%4"_s.arg(core.user).arg(core.system).arg(core.idle).arg(core.nice);
    }
    parts += ticks;
    const auto &memory = reading.virtualMemory;
    parts +=
        memory
            ? u"%1+%2+%3"_s.arg(memory->activeCount).arg(memory->wireCount).arg(memory->compressorPageCount)
            : u"none"_s;
    parts += hexadecimal(reading.swapUsage);
    parts += hexadecimal(reading.pressureLevel);
    QStringList links;
    for (const auto &link : reading.links)
        links += u"%1:%2/%3"_s.arg(QString::fromStdString(link.name))
                     .arg(link.receivedBytes.value_or(0))
                     .arg(link.sentBytes.value_or(0));
    parts += links.isEmpty() ? u"no links"_s : links.join(u' ');
    parts += QString::number(reading.thermalState);
    parts += QString::number(reading.powerSources.size());
    return parts.join(u" | "_s);
}

/// The first subject on which the machines answer differently.
QString difference(const Machine &one, const Machine &other)
{
    const auto same = [&](const auto &answer) { return answer(one) == answer(other); };
#define QUILLMARK_SAME(call)                                                                                 \
    if (!same([](const Machine &machine) { return machine.call; }))                                          \
        return QStringLiteral(#call);
    QUILLMARK_SAME(system().operatingSystem())
    QUILLMARK_SAME(system().words())
    QUILLMARK_SAME(system().instructionSet())
    QUILLMARK_SAME(system().hostName())
    QUILLMARK_SAME(system().physicalMemory())
    QUILLMARK_SAME(system().uptime())
    QUILLMARK_SAME(system().thermalState())
    QUILLMARK_SAME(counters().pageSize())
    QUILLMARK_SAME(counters().reader()->read().processorTicks)
    QUILLMARK_SAME(counters().reader()->read().virtualMemory)
    QUILLMARK_SAME(power().powerSources())
    QUILLMARK_SAME(power().settings())
    QUILLMARK_SAME(power().powerSupplies())
    QUILLMARK_SAME(registry().services("AppleSmartBattery"))
    QUILLMARK_SAME(graphics().read())
    QUILLMARK_SAME(intelligence().languageModelState())
    QUILLMARK_SAME(intelligence().computeDevices())
    QUILLMARK_SAME(intelligence().accelerators())
    QUILLMARK_SAME(intelligence().renderNodes())
    QUILLMARK_SAME(displays().displays())
    QUILLMARK_SAME(media().videoEncoders())
    QUILLMARK_SAME(media().videoDecoders())
    QUILLMARK_SAME(media().imageTypes())
    QUILLMARK_SAME(media().vainfo())
    QUILLMARK_SAME(capture().authorization(CaptureKind::Video))
    QUILLMARK_SAME(capture().authorization(CaptureKind::Audio))
    QUILLMARK_SAME(capture().cameras())
    QUILLMARK_SAME(capture().audioDevices())
    QUILLMARK_SAME(capture().audioDefaults())
    QUILLMARK_SAME(capture().soundCards())
    QUILLMARK_SAME(volumes().startupVolume())
    QUILLMARK_SAME(volumes().disks())
    QUILLMARK_SAME(volumes().otherVolumes())
    QUILLMARK_SAME(network().interfaces())
    QUILLMARK_SAME(network().currentPath())
    QUILLMARK_SAME(network().wifi())
    QUILLMARK_SAME(network().ethernetLinks())
    QUILLMARK_SAME(network().bluetooth())
    QUILLMARK_SAME(security().read())
#undef QUILLMARK_SAME
    return {};
}

QByteArray recorded(const Machine &machine, RecordedNames names = RecordedNames::Keep)
{
    return QByteArray::fromStdString(recordMachine(machine, names));
}

} // namespace

class RecordedMachineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faults_data();
    void faults();
    void badMembers_data();
    void badMembers();
    void goodMembers_data();
    void goodMembers();
    void cutAndDamaged();
    void files();
    void absentMembers();
    void kernelValues_data();
    void kernelValues();
    void samples();
    void withoutSamples();
    void dates_data();
    void dates();
    void recordingAnswersAlike_data();
    void recordingAnswersAlike();
    void dictionariesKeepTheirTypes();
    void namesAndIdentifiersAreLeftOut();
};

void RecordedMachineTest::faults_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name, const QByteArray &text, const QString &fault) {
        QTest::newRow(name) << text << fault;
    };
    const QByteArray system = R"("operatingSystem": {"name": "macOS", "major": 15})";
    const auto notObject = [](int line, int column, const QString &reason) {
        return u"not a JSON object: line %1, column %2: %3"_s.arg(line).arg(column).arg(reason);
    };
    row("empty", "", notObject(1, 1, u"the text ends too early"_s));
    row("blank", "\n \n", notObject(3, 1, u"the text ends too early"_s));
    row("other text", "hello", notObject(1, 1, u"this is no value"_s));
    row("an array", "[]", notObject(1, 1, u"this is no object"_s));
    row("a text", "\"quillmark-machine-1\"", notObject(1, 1, u"this is no object"_s));
    row("a byte order mark", "\xEF\xBB\xBF{}", notObject(1, 1, u"this is no value"_s));
    row("two objects", "{}\n{}", notObject(2, 1, u"something follows the end of the value"_s));
    row("single quotes", "{'format': 1}",
        notObject(1, 2, u"a member's name in quotation marks is missing"_s));
    row("a comma too many", "{\"a\": 1,\n}",
        notObject(2, 1, u"a member's name in quotation marks is missing"_s));
    row("invalid UTF-8", leastWith("\"hostName\": \"\xC3\x28\""),
        notObject(1, 99, u"the text is not valid UTF-8"_s));
    row("deep arrays", QByteArray(100000, '['), notObject(1, 65, u"values are nested too deep"_s));
    row("deep objects", QByteArray("{\"a\":").repeated(100000),
        notObject(1, 321, u"values are nested too deep"_s));
    row("deep in an unknown member", leastWith("\"x\": " + QByteArray(100000, '[')),
        notObject(1, 154, u"values are nested too deep"_s));

    row("nothing in it", "{}", u"\"format\" is missing: this is not a recorded machine"_s);
    row("no format", "{" + system + "}", u"\"format\" is missing: this is not a recorded machine"_s);
    row("format null", "{\"format\": null, " + system + "}",
        u"\"format\" is missing: this is not a recorded machine"_s);
    row("other format", "{\"format\": \"quillmark-machine-2\", " + system + "}",
        u"\"format\" must be \"quillmark-machine-1\""_s);
    row("format is a number", "{\"format\": 1, " + system + "}",
        u"\"format\" must be a text, not a number"_s);
    row("format twice", leastWith("\"format\": \"x\""), u"\"format\" must be \"quillmark-machine-1\""_s);
    row("no system", R"({"format": "quillmark-machine-1"})", u"\"operatingSystem\" is missing"_s);
    row("the first fault counts", R"({"hostName": 5})",
        u"\"format\" is missing: this is not a recorded machine"_s);
}

void RecordedMachineTest::faults()
{
    QFETCH(const QByteArray, text);
    QTEST(faultOf(text), "fault");
}

void RecordedMachineTest::badMembers_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<QString>("fault");
    const auto row = [](const QByteArray &member, const QString &path, const QString &problem) {
        QTest::newRow(member.constData()) << member << u"\"%1\" %2"_s.arg(path, problem);
    };
    const auto is = [&row](const QByteArray &member, const QString &path, const QString &wanted,
                           const QString &found) {
        row(member, path, u"must be %1, not %2"_s.arg(wanted, found));
    };
    const auto text = u"a text"_s, number = u"a number"_s, whole = u"a whole number"_s,
               boolean = u"true or false"_s, object = u"an object"_s, array = u"an array"_s,
               fraction = u"a number with a fraction"_s;
    const auto int32 = u"must be from -2147483648 to 2147483647"_s;
    const auto int64 = u"must be from 0 to 9223372036854775807"_s;
    const auto uint32 = u"must be from 0 to 4294967295"_s;
    const auto missing = u"is missing"_s;
    const auto code = u"must be a code of four characters"_s;

    row(R"("operatingSystem": null)", u"operatingSystem"_s, missing);
    is(R"("operatingSystem": "macOS 15")", u"operatingSystem"_s, object, text);
    row(R"("operatingSystem": {"major": 15})", u"operatingSystem.name"_s, missing);
    row(R"("operatingSystem": {"name": "macOS"})", u"operatingSystem.major"_s, missing);
    is(R"("operatingSystem": {"name": 5, "major": 15})", u"operatingSystem.name"_s, text, number);
    is(R"("operatingSystem": {"name": "macOS", "major": "15"})", u"operatingSystem.major"_s, whole, text);
    is(R"("operatingSystem": {"name": "macOS", "major": 15.5})", u"operatingSystem.major"_s, whole, fraction);
    row(R"("operatingSystem": {"name": "macOS", "major": 15, "minor": 2147483648})",
        u"operatingSystem.minor"_s, int32);
    is(R"("operatingSystem": {"name": "macOS", "major": 15, "patch": []})", u"operatingSystem.patch"_s, whole,
       array);
    is(R"("hostName": 5)", u"hostName"_s, text, number);
    is(R"("hostName": {"hex": "00"})", u"hostName"_s, text, u"bytes"_s);
    is(R"("physicalMemory": "16 GB")", u"physicalMemory"_s, whole, text);
    row(R"("physicalMemory": -1)", u"physicalMemory"_s, int64);
    is(R"("physicalMemory": 9223372036854775808)", u"physicalMemory"_s, whole,
       u"a number that is too large"_s);
    is(R"("physicalMemory": 18446744073709551616)", u"physicalMemory"_s, whole, fraction);
    is(R"("systemUptime": "long")", u"systemUptime"_s, number, text);
    is(R"("thermalState": true)", u"thermalState"_s, whole, boolean);
    row(R"("thermalState": 3000000000)", u"thermalState"_s, int32);
    row(R"("pageSize": 0)", u"pageSize"_s, u"must be from 1 to 1073741824"_s);
    is(R"("pageSize": 4096.5)", u"pageSize"_s, whole, fraction);
    is(R"("words": [])", u"words"_s, object, array);
    is(R"("words": {"processor": 5})", u"words.processor"_s, text, number);
    row(R"("instructionSet": "mips")", u"instructionSet"_s,
        u"must be one of \"arm64\", \"x86_64\", \"other\""_s);

    is(R"("sysctl": [])", u"sysctl"_s, object, array);
    const auto value = u"a text, a whole number or an object"_s;
    const auto sized = u"must hold \"int32\", \"int64\" or \"hex\""_s;
    is(R"("sysctl": {"hw.model": true})", u"sysctl.hw.model"_s, value, boolean);
    is(R"("sysctl": {"x": 1.5})", u"sysctl.x"_s, value, fraction);
    is(R"("sysctl": {"x": [1]})", u"sysctl.x"_s, value, array);
    row(R"("sysctl": {"x": {}})", u"sysctl.x"_s, sized);
    row(R"("sysctl": {"x": {"int16": 5}})", u"sysctl.x"_s, sized);
    row(R"("sysctl": {"x": {"hex": "0"}})", u"sysctl.x"_s, sized);
    row(R"("sysctl": {"x": {"hex": "-1"}})", u"sysctl.x"_s, sized);
    row(R"("sysctl": {"x": {"hex": "0g"}})", u"sysctl.x"_s, sized);
    row(R"("sysctl": {"x": {"hex": 5}})", u"sysctl.x"_s, sized);
    row(R"("sysctl": {"x": {"int32": 2147483648}})", u"sysctl.x.int32"_s, int32);
    is(R"("sysctl": {"x": {"int64": "1"}})", u"sysctl.x.int64"_s, whole, text);

    is(R"("graphics": "none")", u"graphics"_s, object, text);
    is(R"("graphics": {"devices": {}})", u"graphics.devices"_s, array, object);
    is(R"("graphics": {"devices": [{"name": "A"}, 5]})", u"graphics.devices[1]"_s, object, number);
    row(R"("graphics": {"devices": [{}]})", u"graphics.devices[0].name"_s, missing);
    is(R"("graphics": {"devices": [{"name": "A", "isLowPower": 1}]})", u"graphics.devices[0].isLowPower"_s,
       boolean, number);
    row(R"("graphics": {"devices": [{"name": "A", "recommendedMaxWorkingSetSize": -1}]})",
        u"graphics.devices[0].recommendedMaxWorkingSetSize"_s, int64);
    is(R"("graphics": {"devices": [{"name": "A", "families": 1001}]})", u"graphics.devices[0].families"_s,
       array, number);
    row(R"("graphics": {"devices": [{"name": "A", "families": [1001, "x"]}]})",
        u"graphics.devices[0].families"_s, u"must hold whole numbers"_s);
    const auto place = u"must be the place of a device in \"devices\", counted from 0"_s;
    row(R"("graphics": {"defaultDevice": 0})", u"graphics.defaultDevice"_s, place);
    row(R"("graphics": {"defaultDevice": 1, "devices": [{"name": "A"}]})", u"graphics.defaultDevice"_s,
        place);
    row(R"("graphics": {"defaultDevice": -1, "devices": [{"name": "A"}]})", u"graphics.defaultDevice"_s,
        place);
    is(R"("graphics": {"defaultDevice": "0", "devices": [{"name": "A"}]})", u"graphics.defaultDevice"_s,
       whole, text);

    is(R"("videoEncoders": {})", u"videoEncoders"_s, array, object);
    is(R"("videoEncoders": [[]])", u"videoEncoders[0]"_s, object, array);
    row(R"("videoEncoders": [{}])", u"videoEncoders[0].codecType"_s, missing);
    row(R"("videoEncoders": [{"codecType": "hevc1"}])", u"videoEncoders[0].codecType"_s, code);
    is(R"("videoEncoders": [{"codecType": "hvc1", "isHardwareAccelerated": 1}])",
       u"videoEncoders[0].isHardwareAccelerated"_s, boolean, number);
    is(R"("authorization": 3)", u"authorization"_s, object, number);
    is(R"("authorization": {"audio": "denied"})", u"authorization.audio"_s, whole, text);

    is(R"("volume": [])", u"volume"_s, object, array);
    row(R"("volume": {"name": "V"})", u"volume.total"_s, missing);
    row(R"("volume": {"total": -1})", u"volume.total"_s, int64);
    is(R"("volume": {"total": 5, "available": 0.5})", u"volume.available"_s, whole, fraction);
    is(R"("volume": {"total": 5, "name": true})", u"volume.name"_s, text, boolean);
    is(R"("volume": {"total": 5, "supportsFileCloning": "yes"})", u"volume.supportsFileCloning"_s, boolean,
       text);
    is(R"("powerSources": {})", u"powerSources"_s, array, object);
    is(R"("powerSources": [{}, null])", u"powerSources[1]"_s, object, u"null"_s);
    is(R"("registry": [])", u"registry"_s, object, array);
    is(R"("registry": {"A": 5})", u"registry.A"_s, array, number);
    is(R"("registry": {"A": [{}, "x"]})", u"registry.A[1]"_s, object, text);

    is(R"("interfaces": {})", u"interfaces"_s, array, object);
    row(R"("interfaces": [{"family": "link"}])", u"interfaces[0].name"_s, missing);
    row(R"("interfaces": [{"name": "en0"}])", u"interfaces[0].family"_s, missing);
    row(R"("interfaces": [{"name": "en0", "family": "inet"}])", u"interfaces[0].family"_s,
        u"must be one of \"link\", \"ipv4\", \"ipv6\""_s);
    is(R"("interfaces": [{"name": "en0", "family": "link", "up": 1}])", u"interfaces[0].up"_s, boolean,
       number);
    row(R"("interfaces": [{"name": "en0", "family": "link", "sentBytes": 4294967296}])",
        u"interfaces[0].sentBytes"_s, uint32);
    row(R"("interfaces": [{"name": "en0", "family": "link", "receivedBytes": -1}])",
        u"interfaces[0].receivedBytes"_s, uint32);
    is(R"("networkPath": "up")", u"networkPath"_s, object, text);
    row(R"("networkPath": {})", u"networkPath.status"_s, missing);
    row(R"("networkPath": {"status": "up"})", u"networkPath.status"_s,
        u"must be one of \"invalid\", \"satisfied\", \"unsatisfied\", \"satisfiable\""_s);
    row(R"("networkPath": {"status": "satisfied", "interfaceTypes": ["wlan"]})",
        u"networkPath.interfaceTypes"_s,
        u"may hold \"other\", \"wifi\", \"cellular\", \"wired\" and \"loopback\""_s);
    is(R"("networkPath": {"status": "satisfied", "isExpensive": "no"})", u"networkPath.isExpensive"_s,
       boolean, text);

    is(R"("wifi": true)", u"wifi"_s, object, boolean);
    is(R"("wifi": {"rssiValue": -56.5})", u"wifi.rssiValue"_s, whole, fraction);
    row(R"("ethernetLinks": [{"name": "a"}, {"speed": 1}])", u"ethernetLinks[1].name"_s, missing);
    row(R"("bluetooth": {"blocked": true})", u"bluetooth.present"_s, missing);

    is(R"("powerSettings": 5)", u"powerSettings"_s, object, number);
    is(R"("powerSettings": {"lowPowerModeEnabled": 1})", u"powerSettings.lowPowerModeEnabled"_s, boolean,
       number);
    is(R"("powerSettings": {"externalAdapter": []})", u"powerSettings.externalAdapter"_s, object, array);
    is(R"("powerSupplies": {"BAT0": "x"})", u"powerSupplies.BAT0"_s, object, text);
    is(R"("disks": {})", u"disks"_s, array, object);
    is(R"("disks": [{}, 5])", u"disks[1]"_s, object, number);
    row(R"("disks": [{"Size": -1}])", u"disks[0].Size"_s, int64);
    is(R"("disks": [{"Unmap": 1}])", u"disks[0].Unmap"_s, boolean, number);
    is(R"("volumes": [{"name": []}])", u"volumes[0].name"_s, text, array);

    const auto texts = u"must hold texts"_s;
    row(R"("securityState": {"csrutil": {"exitStatus": 0}})", u"securityState.csrutil.output"_s, missing);
    row(R"("securityState": {"biometry": {"canEvaluate": true}})", u"securityState.biometry.biometryType"_s,
        missing);
    row(R"("securityState": {"efiSecureBoot": 256})", u"securityState.efiSecureBoot"_s,
        u"must be from 0 to 255"_s);
    row(R"("securityState": {"cpuVulnerabilities": ["Vulnerable", 1]})",
        u"securityState.cpuVulnerabilities"_s, texts);
    row(R"("languageModel": {})", u"languageModel.state"_s, missing);
    row(R"("languageModel": {"state": 6})", u"languageModel.state"_s, u"must be from 0 to 5"_s);
    row(R"("computeDevices": [{"kind": "cpu"}, {"kind": "npu"}])", u"computeDevices[1].kind"_s,
        u"must be one of \"cpu\", \"gpu\", \"neuralEngine\", \"other\""_s);
    is(R"("accelerators": [{"name": "accel0", "driver": 5}])", u"accelerators[0].driver"_s, text, number);
    row(R"("renderNodes": [{"accessible": true}])", u"renderNodes[0].name"_s, missing);

    row(R"("videoDecoders": {"h264 ": true})", u"videoDecoders.h264 "_s,
        u"must be named by a code of four characters"_s);
    is(R"("videoDecoders": {"avc1": 1})", u"videoDecoders.avc1"_s, boolean, number);
    row(R"("imageTypes": {"readable": []})", u"imageTypes.writable"_s, missing);
    row(R"("imageTypes": {"readable": [5], "writable": []})", u"imageTypes.readable"_s, texts);
    row(R"("vainfo": {"output": ""})", u"vainfo.exitStatus"_s, missing);
    row(R"("vainfo": {"noAnswer": "why"})", u"vainfo.noAnswer"_s,
        u"must be one of \"noDevice\", \"notInstalled\", \"asleep\""_s);
    row(R"("cameras": [{"deviceType": "External"}])", u"cameras[0].localizedName"_s, missing);
    is(R"("cameras": [{"localizedName": "", "formats": [{"width": 3, "height": "4"}]}])",
       u"cameras[0].formats[0].height"_s, whole, text);
    row(R"("audioDevices": [{"id": 7, "transport": "usb"}])", u"audioDevices[0].transport"_s, code);
    row(R"("audioDevices": [{"id": 7, "availableSampleRates": [[1, 2], [3]]}])",
        u"audioDevices[0].availableSampleRates"_s, u"must hold pairs of numbers"_s);
    row(R"("audioDevices": [{"id": 7, "inputChannels": -1}])", u"audioDevices[0].inputChannels"_s, uint32);
    row(R"("audioDefaults": {"output": 1})", u"audioDefaults.input"_s, missing);
    is(R"("soundCards": [{"name": "x", "capture": "yes"}])", u"soundCards[0].capture"_s, boolean, text);
    is(R"("displays": [{}, {"localizedName": 5}])", u"displays[1].localizedName"_s, text, number);
    row(R"("displays": [{"pixelWidth": 5000000000}])", u"displays[0].pixelWidth"_s, int32);
    row(R"("displays": [{"screenSize": [5]}])", u"displays[0].screenSize"_s, u"must hold two numbers"_s);
    row(R"("displays": [{"screenSize": [5, "6"]}])", u"displays[0].screenSize"_s, u"must hold two numbers"_s);
    const auto bytes = u"bytes, {\"hex\": \"…\"}"_s;
    is(R"("displays": [{"edid": "00ff"}])", u"displays[0].edid"_s, bytes, text);
    is(R"("displays": [{"edid": {"hex": "00f"}}])", u"displays[0].edid"_s, bytes, object);

    const auto ticks = u"must hold four whole numbers from 0 to 4294967295 for each core"_s;
    is(R"("processorTicks": 5)", u"processorTicks"_s, array, number);
    for (const auto *cores : {"[5]", "[[1, 2, 3]]", "[[1, 2, 3, 4, 5]]", "[[1, 2, 3, -1]]",
                              "[[1, 2, 3, 4294967296]]", "[[1, 2, 3, 4.5]]"})
        row(QByteArray("\"processorTicks\": ") + cores, u"processorTicks"_s, ticks);
    is(R"("virtualMemory": 5)", u"virtualMemory"_s, object, number);
    for (const auto *count : {"-1", "281474976710657"})
        row(QByteArray(R"("virtualMemory": {"wire_count": )") + count + "}", u"virtualMemory.wire_count"_s,
            u"must be from 0 to 281474976710656"_s);
    is(R"("samples": {})", u"samples"_s, array, object);
    is(R"("samples": [{}, 5])", u"samples[1]"_s, object, number);
    row(R"("samples": [{}, {"processorTicks": [[]]}])", u"samples[1].processorTicks"_s, ticks);
    is(R"("samples": [{"sysctl": 5}])", u"samples[0].sysctl"_s, object, number);
    is(R"("samples": [{"sysctl": {"vm.swapusage": true}}])", u"samples[0].sysctl.vm.swapusage"_s, value,
       boolean);
    is(R"("samples": [{"thermalState": "hot"}])", u"samples[0].thermalState"_s, whole, text);
    is(R"("samples": [{"interfaces": [5]}])", u"samples[0].interfaces[0]"_s, object, number);
    is(R"("samples": [{"date": 5}])", u"samples[0].date"_s, text, number);
}

void RecordedMachineTest::badMembers()
{
    QFETCH(const QByteArray, member);
    QTEST(faultOf(leastWith(member)), "fault");
}

void RecordedMachineTest::goodMembers_data()
{
    QTest::addColumn<QByteArray>("member");
    for (const auto *member :
         {R"("unknown": {"hostName": 5})", R"("date": "yesterday")",
          R"("hostName": null, "graphics": null, "sysctl": null)",
          R"("powerSources": [{"Type": 5, "Current Capacity": [null, {"a": {"hex": "zz"}}]}])",
          R"("registry": {"A": {"x": true}, "B": [], "C": {}})",
          R"("graphics": {"defaultDevice": null, "devices": []})", R"("systemUptime": 5)",
          R"("systemUptime": 5.5)", R"("sysctl": {"a": null})", R"("samples": [])",
          R"("samples": [{"processorTicks": null, "unknown": 5}])"})
        QTest::newRow(member) << QByteArray(member);
}

void RecordedMachineTest::goodMembers()
{
    QFETCH(const QByteArray, member);
    QCOMPARE(faultOf(leastWith(member)), QString());
}

/// A recording that was cut off, or has a byte that stands in no text, is refused wherever that is.
void RecordedMachineTest::cutAndDamaged()
{
    const auto text = recordingText(u"macbook-pro-m3-max"_s).trimmed();
    QCOMPARE(faultOf(text), QString());
    for (qsizetype length = 0; length < text.size(); length += 7)
        QVERIFY2(faultOf(text.left(length)).startsWith(u"not a JSON object: line "_s),
                 qPrintable(u"%1"_s.arg(length)));
    for (qsizetype place = 0; place < text.size(); place += 13) {
        auto damaged = text;
        damaged[place] = '\xFF';
        QVERIFY2(faultOf(damaged).startsWith(u"not a JSON object: line "_s), qPrintable(u"%1"_s.arg(place)));
    }
}

void RecordedMachineTest::files()
{
    QTemporaryDir folder;
    const auto path = [&folder](const QString &name) { return folder.filePath(name).toStdString(); };
    const auto write = [&](const QString &name, const QByteArray &text) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    };
    const auto fault = [&path](const QString &name) {
        const auto machine = openRecording(path(name));
        return machine ? std::string() : machine.error().text;
    };
    constexpr auto most = static_cast<qsizetype>(maximumRecordingSize);
    const auto good = leastWith("\"hostName\": \"H\"");
    write(u"good.json"_s, good);
    write(u"empty.json"_s, "");
    write(u"most.json"_s, good + QByteArray(most - good.size(), ' '));
    write(u"more.json"_s, good + QByteArray(most - good.size() + 1, ' '));
    QCOMPARE((*openRecording(path(u"good.json"_s)))->system().hostName(), std::string("H"));
    QCOMPARE(fault(u"most.json"_s), std::string());
    QCOMPARE(fault(u"more.json"_s),
             path(u"more.json"_s) + ": larger than 16 MiB: this is not a recorded machine");
    QCOMPARE(fault(u"empty.json"_s),
             path(u"empty.json"_s) + ": not a JSON object: line 1, column 1: the text ends too early");
    QCOMPARE(fault(u"missing.json"_s), path(u"missing.json"_s) + ": No such file or directory");
    QCOMPARE(fault(u"."_s), path(u"."_s) + ": Is a directory");
}

void RecordedMachineTest::absentMembers()
{
    const auto machine = machineFrom(leastWith("\"unknown\": 1"));
    QCOMPARE(machine->system().operatingSystem(), (OperatingSystem{.name = "macOS", .major = 15}));
    QVERIFY(!machine->system().hostName() && !machine->system().uptime() &&
            !machine->system().instructionSet());
    QCOMPARE(machine->system().physicalMemory(), 0);
    QCOMPARE(machine->system().thermalState(), 0);
    QCOMPARE(machine->counters().pageSize(), 4096);
    QVERIFY(!machine->kernelValues().read("hw.model"));
    QVERIFY(!machine->power().powerSources() && machine->registry().services("AppleSmartBattery").empty());
    QCOMPARE(machine->graphics().read(), GraphicsReading());
    QVERIFY(!machine->media().videoEncoders() && !machine->volumes().startupVolume());
    QVERIFY(machine->network().interfaces().empty() && !machine->network().currentPath());
    QVERIFY(!machine->network().watchPath([](const NetworkPath &) {}));
}

void RecordedMachineTest::kernelValues_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("bytes");
    const auto row = [](const char *value, const QString &bytes) {
        QTest::newRow(value) << QByteArray(value) << bytes;
    };
    row("\"Mac\"", u"4d616300"_s);
    row("\"\"", u"00"_s);
    row("\"ä\"", u"c3a400"_s);
    row("\"a\\u0000b\"", u"61006200"_s);
    row("14", u"0e000000"_s);
    row("-1", u"ffffffff"_s);
    row("2147483647", u"ffffff7f"_s);
    row("2147483648", u"0000008000000000"_s);
    row("-2147483648", u"00000080"_s);
    row("-2147483649", u"ffffff7fffffffff"_s);
    row("9223372036854775807", u"ffffffffffffff7f"_s);
    row("{\"int64\": 14}", u"0e00000000000000"_s);
    row("{\"int32\": -2}", u"feffffff"_s);
    row("{\"hex\": \"\"}", QString());
    row("{\"hex\": \"0aFf\"}", u"0aff"_s);
    row("null", u"none"_s);
}

void RecordedMachineTest::kernelValues()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QString, bytes);
    const auto machine = machineFrom(leastWith("\"sysctl\": {\"hw.model\": " + value + "}"));
    QCOMPARE(hexadecimal(machine->kernelValues().read("hw.model")), bytes);
    QCOMPARE(hexadecimal(machine->kernelValues().read("hw.mode")), u"none"_s);
    const auto again = machineFrom(recorded(*machine));
    QCOMPARE(hexadecimal(again->kernelValues().read("hw.model")), bytes);
}

void RecordedMachineTest::samples()
{
    const auto machine = machineFrom(leastWith(R"(
        "processorTicks": [[1, 2, 3, 4], [4294967295, 0, 0, 0]], "virtualMemory": {"active_count": 10, "wire_count": 20},
        "sysctl": {"vm.swapusage": {"hex": "aa"}, "kern.memorystatus_vm_pressure_level": 1}, "thermalState": 1,
        "interfaces": [{"name": "en0", "family": "link", "receivedBytes": 100, "sentBytes": 200}, {"name": "en0", "family": "ipv4"}],
        "powerSources": [{"Type": "UPS"}],
        "samples": [
            {},
            {"date": "2026-03-01T09:00:00.250Z", "sysctl": {"kern.memorystatus_vm_pressure_level": 4}, "powerSources": []},
            {"processorTicks": null, "virtualMemory": null, "sysctl": {"vm.swapusage": null}, "interfaces": null,
             "thermalState": null, "powerSources": null},
            {"date": "1970-01-01T00:00:01Z", "sysctl": null, "virtualMemory": {}, "processorTicks": [], "thermalState": 3,
             "interfaces": [{"name": "en1", "family": "ipv6"}, {"name": "en1", "family": "link", "receivedBytes": 4294967295}]}])"));
    const QStringList expected = {
        u"now | ticks 1/2/3/4 4294967295/0/0/0 | 10+20+0 | aa | 01000000 | en0:100/200 | 1 | 1"_s,
        u"1772355600250 | ticks 1/2/3/4 4294967295/0/0/0 | 10+20+0 | aa | 04000000 | en0:100/200 | 1 | 0"_s,
        u"now | none | none | none | 01000000 | no links | 0 | 0"_s,
        u"1000 | ticks | 0+0+0 | none | none | en1:4294967295/0 | 3 | 1"_s,
        u"1000 | ticks | 0+0+0 | none | none | en1:4294967295/0 | 3 | 1"_s};
    const auto reader = machine->counters().reader();
    for (const auto &line : expected)
        QCOMPARE(shown(reader->read()), line);
    QCOMPARE(shown(machine->counters().reader()->read()), expected.first()); // every reader begins anew
    QCOMPARE(machine->power().powerSources()->size(), std::size_t{1}); // the counters alone are replayed
}

void RecordedMachineTest::withoutSamples()
{
    const auto machine =
        machineFrom(leastWith(R"("processorTicks": [[1, 2, 3, 4]], "date": "2026-03-01T09:00:00Z")"));
    const auto reader = machine->counters().reader();
    for (int i = 0; i < 2; ++i)
        QCOMPARE(shown(reader->read()), u"now | ticks 1/2/3/4 | none | none | none | no links | 0 | 0"_s);
}

void RecordedMachineTest::dates_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<qint64>("milliseconds"); // since 1970; -1: no date
    QTest::newRow("leap day") << QByteArray("2024-02-29T23:59:59.999Z") << qint64(1709251199999);
    QTest::newRow("without a fraction") << QByteArray("2024-02-29T23:59:59Z") << qint64(1709251199000);
    for (const auto *date :
         {"", "2026-03-01", "2026-03-01T09:00:00", "2026-03-01T09:00:00+01:00", "2026-03-01 09:00:00Z",
          "2026-02-29T09:00:00Z", "2026-13-01T09:00:00Z", "2026-00-01T09:00:00Z", "2026-03-00T09:00:00Z",
          "2026-03-01T24:00:00Z", "2026-03-01T09:60:00Z", "2026-03-01T09:00:60Z", "2026-03-01T-0:00:00Z",
          "2026-03-01T09:00:00.-01Z", "2026-03-01T09:00:00.5Z", "-026-03-01T09:00:00Z",
          "2026-03-01T0x:00:00Z", "2026-03-01T09:00:00.000z"})
        QTest::newRow(date) << QByteArray(date) << qint64(-1);
}

void RecordedMachineTest::dates()
{
    QFETCH(const QByteArray, date);
    QFETCH(const qint64, milliseconds);
    const auto text = leastWith("\"samples\": [{\"date\": \"" + date + "\"}]");
    if (milliseconds < 0) {
        QCOMPARE(faultOf(text),
                 u"\"samples[0].date\" must be a date of the form \"2026-03-01T09:00:00.000Z\""_s);
        return;
    }
    const auto reading = machineFrom(text)->counters().reader()->read();
    QCOMPARE(qint64(reading.date.value().time_since_epoch().count()), milliseconds);
}

void RecordedMachineTest::recordingAnswersAlike_data()
{
    QTest::addColumn<QByteArray>("recording");
    for (const auto &name : recordingNames())
        QTest::newRow(qPrintable(name)) << recordingText(name);
    QTest::newRow("least") << leastWith("\"unknown\": 1");
    QTest::newRow("small") << changedRecording();
    QTest::newRow("default device twice") << changedRecording(
        R"({"graphics": {"defaultDevice": 1, "devices": [{"name": "A"}, {"name": "A"}, {"name": "B", "families": [-1, 2147483647]}]}})");
    QTest::newRow("what is there for artificial intelligence")
        << changedRecording(R"({"languageModel": {"state": 3},
        "computeDevices": [{"kind": "other"}, {"kind": "neuralEngine", "totalCoreCount": 16}, {"kind": "cpu"}],
        "accelerators": [{"name": "accel0", "driver": "intel_vpu"}, {"name": "0000:00:0b.0"}],
        "renderNodes": [{"name": "renderD128"}, {"name": "renderD129", "driver": "i915", "accessible": true,
                                                 "runtimeStatus": "suspended"}]})");
    QTest::newRow("path of every kind") << changedRecording(
        R"({"networkPath": {"status": "satisfiable", "isConstrained": true, "supportsDNS": true,
            "interfaceTypes": ["loopback", "other", "cellular", "wired", "wifi"]}})");
    QTest::newRow("odd texts") << changedRecording(
        R"({"hostName": "\"\\\u0000\u001f\u007f\u009b 😀", "systemUptime": 0.1, "sysctl": {"hw.model": "a\tb", "kern.osversion": 5,
            "hw.physicalcpu": "eight", "hw.logicalcpu": {"hex": "0102"}}})");
}

void RecordedMachineTest::recordingAnswersAlike()
{
    QFETCH(const QByteArray, recording);
    const auto machine = machineFrom(recording);
    const auto text = recorded(*machine);
    const auto again = machineFrom(text);
    QCOMPARE(difference(*machine, *again), QString());
    QCOMPARE(recorded(*again), text);
    const auto written = QJsonDocument::fromJson(text).object()[u"sysctl"_s].toObject();
    for (const auto &name : written.keys())
        QCOMPARE(hexadecimal(again->kernelValues().read(name.toStdString())),
                 hexadecimal(machine->kernelValues().read(name.toStdString())));
}

/// A whole number with a fraction of 0 is not an integer to a reader, before and after.
void RecordedMachineTest::dictionariesKeepTheirTypes()
{
    const auto machine =
        machineFrom(leastWith(R"("powerSources": [{"Type": "InternalBattery", "a": 80.0, "b": 80, "c": -0.0,
        "d": 1e300, "e": null, "f": [true, {"hex": "00ff"}, {"hex": "0"}, {}], "g": 9223372036854775807, "h": 1e15}])"));
    const auto sources = machine->power().powerSources();
    QVERIFY(find<double>(sources->front(), "a") && find<std::int64_t>(sources->front(), "b"));
    QVERIFY(machineFrom(recorded(*machine))->power().powerSources() == sources);
}

void RecordedMachineTest::namesAndIdentifiersAreLeftOut()
{
    const auto machine = machineFrom(leastWith(R"(
        "hostName": "NAMED host", "volume": {"name": "NAMED volume", "total": 5},
        "sysctl": {"kern.hostname": "PLANTED", "kern.uuid": "PLANTED", "hw.model": "Mac15,3"},
        "interfaces": [
            {"name": "lo0", "family": "ipv4", "up": true, "loopback": true, "address": "127.0.0.1"},
            {"name": "en0", "family": "link", "up": true, "receivedBytes": 1},
            {"name": "en0", "family": "ipv4", "up": true, "address": "192.0.2.17 NAMED"},
            {"name": "en0", "family": "ipv6", "up": false, "address": "2001:db8::5 NAMED"}],
        "powerSources": [{"Type": "InternalBattery", "Hardware Serial Number": "PLANTED", "Current Capacity": 80,
            "Accessory Identifier": "PLANTED", "Device Address": "PLANTED", "list": [{"MAC Address": "PLANTED", "kept": 1}]}],
        "registry": {"AppleSmartBattery": [
            {"Serial": "PLANTED", "BatterySerialNumber": "PLANTED", "CycleCount": 7, "ManufacturerData": {"hex": "504c414e544544"},
             "BatteryData": {"Serial": "PLANTED", "MfgData": {"hex": "504c414e544544"}, "kept": 2,
                             "deep": [[{"SERIALSTRING": "PLANTED", "IOPlatformUUID": "PLANTED", "kept": 3}]]}},
            {"Serial": "PLANTED"}], "IOPlatformExpertDevice": {"IOPlatformSerialNumber": "PLANTED"}})"));
    for (const auto names : {RecordedNames::LeaveOut, RecordedNames::Keep}) {
        const auto text = recorded(*machine, names);
        QVERIFY2(!text.contains("PLANTED") && !text.contains("504c414e544544"), text.constData());
        QCOMPARE(text.count("NAMED"), names == RecordedNames::Keep ? 4 : 0);
        for (const auto *kept : {"\"kept\": 1", "\"kept\": 2", "\"kept\": 3", "\"CycleCount\": 7",
                                 "\"Mac15,3\"", "\"Current Capacity\": 80"})
            QVERIFY2(text.contains(kept), kept);
    }
    const auto again = machineFrom(recorded(*machine, RecordedNames::LeaveOut));
    QVERIFY(!again->system().hostName());
    QCOMPARE(again->network().interfaces().size(), std::size_t{4});
    QCOMPARE(again->volumes().startupVolume().value().total, 5);
}

QTEST_GUILESS_MAIN(RecordedMachineTest)
#include "RecordedMachineTest.moc"
