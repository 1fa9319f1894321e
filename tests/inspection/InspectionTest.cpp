// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Quillmark.h"
#include "support/ChangedMachine.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

const language::Formats english(u"en"_s);

QList<CapabilitySection> sectionsOf(const platform::Machine &machine)
{
    return DeviceProbe::sections(machine, english, std::nullopt);
}

QStringList lines(const DeviceSummary &summary)
{
    return {u"[headline]"_s,
            u"deviceName | "_s + summary.deviceName,
            u"modelIdentifier | "_s + summary.modelIdentifier,
            u"chip | "_s + summary.chip,
            u"memory | "_s + summary.memory,
            u"storage | "_s + summary.storage,
            u"osVersion | "_s + summary.osVersion,
            u"isAppleSilicon | %1"_s.arg(summary.isAppleSilicon),
            u"hasBattery | %1"_s.arg(summary.hasBattery)};
}

/// One section with a row for each letter: s(upported), u(nsupported), w(arning), i(nfo).
CapabilitySection sectionWith(QStringView letters)
{
    CapabilitySection section;
    for (const QChar letter : letters) {
        const auto place = u"suwi"_s.indexOf(letter);
        section.items +=
            CapabilityItem{.label = u"label"_s, .status = allStatuses[static_cast<std::size_t>(place)]};
    }
    return section;
}

platform::Bytes fourBytes(std::int32_t number)
{
    platform::Bytes bytes(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

/// Answers every name, and keeps which were asked for.
class TalkativeKernel final : public platform::KernelValues
{
public:
    explicit TalkativeKernel(bool arm64)
        : m_arm64(arm64)
    {}

    std::optional<platform::Bytes> read(std::string_view name) const override
    {
        asked.emplace(name);
        if (name == "hw.optional.arm64")
            return fourBytes(m_arm64 ? 1 : 0);
        return fourBytes(2 + static_cast<int>(name.size()));
    }

    mutable std::set<std::string> asked;

private:
    bool m_arm64;
};

/// Has a service of every class, and keeps which were asked for.
class TalkativeRegistry final : public platform::Registry
{
public:
    std::vector<platform::PropertyMap> services(std::string_view name) const override
    {
        asked.emplace(name);
        return {{{"CycleCount", {std::int64_t{7}}}}, {}};
    }

    mutable std::set<std::string> asked;
};

/// A network whose path reports come from a thread of its own, one each time report() is called.
class ThreadedNetwork final : public platform::Network
{
public:
    std::vector<platform::InterfaceEntry> interfaces() const override { return {}; }
    std::optional<platform::NetworkPath> currentPath() const override { return std::nullopt; }
    std::optional<platform::WifiReading> wifi() const override { return std::nullopt; }
    std::vector<platform::LinkReading> ethernetLinks() const override { return {}; }
    std::optional<platform::BluetoothReading> bluetooth() const override { return std::nullopt; }

    std::unique_ptr<platform::PathWatch> watchPath(PathHandler handler) const override
    {
        ++watches;
        return std::make_unique<Watch>(*this, std::move(handler));
    }

    /// Comes back when the handler has returned; false when nobody watches.
    bool report(bool isExpensive)
    {
        std::unique_lock lock(m_mutex);
        m_pending = platform::NetworkPath{.status = platform::NetworkPath::Status::Satisfied,
                                          .isExpensive = isExpensive};
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return !m_pending || watches == 0; });
        return !m_pending;
    }

    mutable std::atomic<int> watches = 0;

private:
    class Watch final : public platform::PathWatch
    {
    public:
        Watch(const ThreadedNetwork &network, PathHandler handler)
            : m_network(network)
            , m_thread([this, handler = std::move(handler)] { run(handler); })
        {}

        ~Watch() override
        {
            {
                const std::lock_guard lock(m_network.m_mutex);
                m_network.watches = 0;
                m_network.m_changed.notify_all();
            }
            m_thread.join();
        }

    private:
        void run(const PathHandler &handler)
        {
            std::unique_lock lock(m_network.m_mutex);
            for (;;) {
                m_network.m_changed.wait(lock,
                                         [this] { return m_network.m_pending || m_network.watches == 0; });
                if (m_network.watches == 0)
                    return;
                handler(*m_network.m_pending);
                m_network.m_pending.reset();
                m_network.m_changed.notify_all();
            }
        }

        const ThreadedNetwork &m_network;
        std::thread m_thread;
    };

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    mutable std::optional<platform::NetworkPath> m_pending;
};

class NotedPasteboard final : public Pasteboard
{
public:
    void clear() override { notes += u"clear"_s; }
    void setText(const QString &text) override { notes += text; }

    QStringList notes;
};

QString reportText(const QList<CapabilitySection> &sections, const std::optional<QDateTime> &date)
{
    return u"%1 sections, %2"_s.arg(sections.size()).arg(date ? u"dated"_s : u"no date"_s);
}

/// A model of a machine with a network of the test's, and what it is made of.
struct Watched
{
    std::unique_ptr<platform::Machine> recording = changedMachine();
    std::unique_ptr<platform::Machine> renamed = changedMachine(R"({"hostName": "Renamed"})");
    ThreadedNetwork network;
    ChangedMachine machine{*recording};
    language::LanguageManager language{{u"en"_s}};
    NotedPasteboard pasteboard;
    std::unique_ptr<inspection::Quillmark> model;

    Watched()
    {
        machine.otherNetwork = &network;
        model = std::make_unique<inspection::Quillmark>(machine, language, pasteboard, reportText);
    }
};

} // namespace

class InspectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordedMachines_data();
    void recordedMachines();
    void oddMachines_data();
    void oddMachines();
    void numbersOfTheKernel();
    void batteries_data();
    void batteries();
    void smallProbes();
    void sectionsAndRows();
    void countsAndScore_data();
    void countsAndScore();
    void equality();
    void whatIsAskedIsRecorded_data();
    void whatIsAskedIsRecorded();
    void modelFollowsThePath();
    void modelWithoutPath();
    void modelThatIsGoneGetsNothing();
};

void InspectionTest::recordedMachines_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("recording");
    for (const auto &name : recordingNames())
        QTest::newRow(qPrintable(name)) << name << recordingText(name);
    const auto silent = [](const char *name, const QByteArray &system) {
        QTest::newRow(name) << QString::fromLatin1(name)
                            << QByteArray(R"({"format": "quillmark-machine-1", "operatingSystem": )" +
                                          system + "}");
    };
    silent("silent-mac", R"({"name": "macOS", "major": 26})");
    silent("silent-linux", R"({"name": "Debian GNU/Linux", "major": 12})");
}

/// The headline and every row, of the recordings and of machines that answer nothing.
/// QUILLMARK_UPDATE_EXPECTED=1 writes the files anew.
void InspectionTest::recordedMachines()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, recording);
    const auto machine = machineFrom(recording);
    auto actual = lines(DeviceProbe::summary(*machine, english));
    for (const auto &section : DeviceProbe::sections(*machine, english, machine->network().currentPath()))
        actual += support::lines(section);

    const auto path = sourcePath(u"tests/inspection/expected/%1.txt"_s.arg(name));
    if (qEnvironmentVariableIntValue("QUILLMARK_UPDATE_EXPECTED") == 1) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write((actual.join(u'\n') + u'\n').toUtf8());
        QSKIP("the expected text was written, not compared");
    }
    QVERIFY(sameLines(actual, QString::fromUtf8(contents(path)).trimmed().split(u'\n')));
}

void InspectionTest::oddMachines_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("expected"); // a line for each row that matters: key | value | status
    const auto row = [](const char *name, const QByteArray &changes, const QString &expected) {
        QTest::newRow(name) << changes << expected;
    };
    const auto kernel = [&row](const char *name, const QByteArray &values, const QString &expected) {
        row(name, "{\"sysctl\": {" + values + "}}", expected);
    };
    const auto device = [&row](const char *name, const QByteArray &members, const QString &expected) {
        row(name, "{\"graphics\": {\"devices\": [{\"name\": \"X\", " + members + "}]}}", expected);
    };

    row("critical", R"({"thermalState": 3})", u"thermalState | Critical | unsupported"_s);
    row("hotter than known", R"({"thermalState": 4})", u"thermalState | Unknown | info"_s);
    row("colder than known", R"({"thermalState": -1})", u"thermalState | Unknown | info"_s);

    row("host name of another script", R"({"hostName": "アダの Mac 💻"})",
        u"deviceName | アダの Mac 💻 | info"_s);
    kernel("no model", R"("hw.model": null)", u"modelIdentifier | — | info"_s);
    kernel("model ends at the first zero", R"("hw.model": {"hex": "4d6163310041"})",
           u"modelIdentifier | Mac1 | info"_s);
    kernel("empty model", R"("hw.model": {"hex": ""})", u"modelIdentifier |  | info"_s);

    row("version between the names", R"({"operatingSystem": {"major": 16, "minor": 2}})",
        u"os | macOS 16.2 (24A335) | info"_s);
    row("no build",
        R"({"operatingSystem": {"major": 13, "minor": 6, "patch": 7}, "sysctl": {"kern.osversion": null}})",
        u"os | macOS 13.6.7 Ventura | info"_s);

    kernel("translated as far as 8 bytes tell", R"("sysctl.proc_translated": {"int64": 1})",
           u"architecture | Apple Silicon (arm64) — via Rosetta | warning"_s);
    kernel("translated, 2", R"("sysctl.proc_translated": 2)",
           u"architecture | Apple Silicon (arm64) | info"_s);
    kernel("translated, not readable as a number", R"("sysctl.proc_translated": {"hex": "01"})",
           u"architecture | Apple Silicon (arm64) | info"_s);
    kernel("translated Intel", R"("sysctl.proc_translated": 1, "hw.optional.arm64": null)",
           u"architecture | Intel (x86_64) — via Rosetta | warning"_s);
    kernel("arm64 is 0", R"("hw.optional.arm64": 0, "hw.optional.avx2_0": 1)",
           u"architecture | Intel (x86_64) | info\nneuralEngine | Not available | unsupported\n"
           "avx2 | Supported | supported\navx512 | Not supported | unsupported\nsme absent\nbf16 absent"_s);
    kernel("arm64 is 2", R"("hw.optional.arm64": 2)", u"architecture | Intel (x86_64) | info\nsme absent"_s);
    kernel("arm64 has one byte", R"("hw.optional.arm64": {"hex": "01"})",
           u"neuralEngine | Not available | unsupported"_s);

    kernel("no brand", R"("machdep.cpu.brand_string": null)", u"processor | Apple Silicon | info"_s);
    kernel("three kinds of cores", R"("hw.nperflevels": 3, "hw.perflevel2.physicalcpu": 2)",
           u"performanceCores | 4 | info\nefficiencyCores | 4 | info"_s);
    kernel("kinds without counts",
           R"("hw.perflevel0.physicalcpu": null, "hw.perflevel1.physicalcpu": {"hex": "040000"})",
           u"performanceCores | 0 | info\nefficiencyCores | 0 | info"_s);
    kernel("many cores are not grouped", R"("hw.logicalcpu": 1024)", u"logicalCores | 1024 | info"_s);
    kernel("frequency of 4 bytes", R"("hw.cpufrequency_max": 800000000)",
           u"maxFrequency | 0.80 GHz | info"_s);
    kernel("least frequency", R"("hw.cpufrequency_max": 1)", u"maxFrequency | 0.00 GHz | info"_s);
    kernel("frequency 0", R"("hw.cpufrequency_max": {"int64": 0})", u"maxFrequency absent"_s);
    kernel("frequency below 0", R"("hw.cpufrequency_max": -1)", u"maxFrequency absent"_s);
    kernel("features", R"("hw.optional.arm.FEAT_SME": 1, "hw.optional.arm.FEAT_BF16": null)",
           u"sme | Supported | supported\nbf16 | Not supported | unsupported\navx2 absent\navx512 absent"_s);

    row("words of another system",
        R"~({"words": {"operatingSystem": "Debian GNU/Linux 12", "processor": "Arm processor", "architecture": "Arm (arm64)"},
             "instructionSet": "arm64", "sysctl": {"machdep.cpu.brand_string": null, "hw.optional.arm64": null}})~",
        u"os | Debian GNU/Linux 12 | info\narchitecture | Arm (arm64) | info\nprocessor | Arm processor | "
        u"info\n"
        "neuralEngine | Not available | unsupported\nbf16 | Supported | supported\navx2 absent"_s);
    row("an instruction set of its own", R"({"instructionSet": "other"})",
        u"sme absent\nbf16 absent\navx2 absent\navx512 absent"_s);
    row("a system number that is no macOS name",
        R"({"operatingSystem": {"name": "Fedora Linux", "major": 26}})",
        u"os | Fedora Linux 26.0 (24A335) | info"_s);

    row("no graphics", R"({"graphics": null})",
        u"metal | Not supported | unsupported\ngpu.1 absent\nmetal3 absent"_s);
    row("devices without a default", R"({"graphics": {"defaultDevice": null}})",
        u"metal | Not supported | unsupported\ngpu.1 absent\nhardwareRayTracing absent"_s);
    device("no tags", R"("hasUnifiedMemory": false)", u"gpu.1 | X | info\nmetal absent"_s);
    device("three tags", R"("isRemovable": true, "isLowPower": true, "hasUnifiedMemory": true)",
           u"gpu.1 | X (unified memory, low power, and external eGPU) | info"_s);
    for (const int family : {1, 7, 8}) {
        device(qPrintable(u"family %1"_s.arg(family)),
               "\"families\": [" + QByteArray::number(1000 + family) + "]",
               u"appleGPUFamily | Apple %1 | info\nhardwareRayTracing | Not supported | unsupported"_s.arg(
                   family));
    }
    for (const int family : {9, 10, 12}) {
        device(qPrintable(u"family %1"_s.arg(family)),
               "\"families\": [1001, " + QByteArray::number(1000 + family) + ", 1002]",
               u"appleGPUFamily | Apple %1 | info\nhardwareRayTracing | Supported | supported"_s.arg(family));
    }
    device("a family not asked for", R"("families": [1013, 1000, 2002, 3003])",
           u"appleGPUFamily absent\nhardwareRayTracing | Not supported | unsupported"_s);
    device("ray tracing in software", R"("supportsRaytracing": true, "families": [1008])",
           u"rayTracing | Supported | supported\nhardwareRayTracing | Not supported | unsupported"_s);
    device("ray tracing in hardware alone", R"("families": [1009])",
           u"rayTracing | Not supported | unsupported\nhardwareRayTracing | Supported | supported"_s);
    device("Metal 4 on an older system", R"("families": [5001, 5002])",
           u"metal3 | Supported | supported\nmetal4 | Requires macOS 26 | unsupported"_s);
    const QByteArray metal4 =
        R"({"operatingSystem": {"major": %}, "graphics": {"devices": [{"name": "X", "families": [5002]}]}})";
    row("Metal 4 on 25", QByteArray(metal4).replace('%', "25"),
        u"metal4 | Requires macOS 26 | unsupported"_s);
    row("Metal 4 on 26", QByteArray(metal4).replace('%', "26"),
        u"metal3 | Not supported | unsupported\nmetal4 | Supported | supported"_s);
    row("Metal 4 on 26 without the family", R"({"operatingSystem": {"major": 26}})",
        u"metal4 | Not supported | unsupported"_s);
    device("no working set", R"("recommendedMaxWorkingSetSize": 0)",
           u"recommendedGPUMemory | Zero kB | info"_s);
    row("the second device is the default",
        R"({"graphics": {"defaultDevice": 1, "devices": [
            {"name": "A", "families": [1009, 5001], "supportsRaytracing": true},
            {"name": "B", "isLowPower": true, "recommendedMaxWorkingSetSize": 1073741824}]}})",
        u"gpu.1 | A | info\ngpu.2 | B (low power) | info\nrecommendedGPUMemory | 1 GB | info\nappleGPUFamily "
        u"absent\n"
        "metal3 | Not supported | unsupported\nrayTracing | Not supported | unsupported"_s);
}

void InspectionTest::oddMachines()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, expected);
    CapabilitySection all;
    for (const auto &section : sectionsOf(*changedMachine(changes)))
        all.items += section.items;
    QVERIFY(hasRows(all, expected.split(u'\n')));
}

void InspectionTest::numbersOfTheKernel()
{
    const auto machine = changedMachine(R"({"sysctl": {
        "four": -2, "eight": {"int64": -3}, "large": 4294967296, "text of three": "abc", "none": {"hex": ""}, "one": {"hex": "01"},
        "two": {"hex": "0100"}, "five": {"hex": "0100000000"}, "nine": {"hex": "010000000000000000"}, "bytes": {"hex": "ffffffff"},
        "flag": 1, "wide flag": {"int64": 1}, "other flag": 2, "zero": 0, "bad": {"hex": "41ff42"}}})");
    const auto number = [&machine](std::string_view name) { return DeviceProbe::sysctlInt(*machine, name); };
    QCOMPARE(number("four"), -2);
    QCOMPARE(number("eight"), -3);
    QCOMPARE(number("large"), std::int64_t{4294967296});
    QCOMPARE(number("bytes"), -1);
    QCOMPARE(number("text of three"), 0x00636261); // four bytes are a number, whatever they mean
    for (const auto *name : {"none", "one", "two", "five", "nine", "no such name"})
        QVERIFY2(!number(name), name);

    QVERIFY(DeviceProbe::sysctlFlag(*machine, "flag") && DeviceProbe::sysctlFlag(*machine, "wide flag"));
    for (const auto *name : {"other flag", "zero", "one", "no such name"})
        QVERIFY2(!DeviceProbe::sysctlFlag(*machine, name), name);

    QCOMPARE(DeviceProbe::sysctlString(*machine, "two"), u"\u0001"_s);
    QCOMPARE(DeviceProbe::sysctlString(*machine, "none"), u""_s);
    QCOMPARE(DeviceProbe::sysctlString(*machine, "bad"), u"A\uFFFDB"_s);
    QVERIFY(!DeviceProbe::sysctlString(*machine, "no such name"));
}

void InspectionTest::batteries_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("expected"); // level charging onAC health cycles
    const auto row = [](const char *name, const QByteArray &sources, const QString &expected,
                        const QByteArray &registry = "{}") {
        QTest::newRow(name) << QByteArray("{\"powerSources\": " + sources + ", \"registry\": " + registry +
                                          "}")
                            << expected;
    };
    row("none", "[]", u"no battery"_s, R"({"AppleSmartBattery": {"CycleCount": 3}})");
    row("UPS", R"([{"Type": "UPS", "Current Capacity": 5}])", u"no battery"_s);
    row("types that are none", R"([{"Type": 5}, {}, {"Type": "internalbattery"}, {"Type": null}])",
        u"no battery"_s);
    row("no keys", R"([{"Type": "InternalBattery"}])", u"0 0 0 - -"_s);
    row("complete",
        R"([{"Type": "InternalBattery", "Current Capacity": 80, "Max Capacity": 100, "Is Charging": true,
             "Power Source State": "AC Power", "BatteryHealth": "Good"}])",
        u"0.8 1 1 Good 112"_s, R"({"AppleSmartBattery": {"CycleCount": 112}})");
    row("values of other types",
        R"([{"Type": "InternalBattery", "Current Capacity": "80", "Max Capacity": true, "Is Charging": 1,
             "Power Source State": {}, "BatteryHealth": 5}])",
        u"0 0 0 - -"_s, R"({"AppleSmartBattery": {"CycleCount": "12"}})");
    row("cycles of the first service", R"([{"Type": "InternalBattery"}])", u"0 0 0 - -"_s,
        R"({"AppleSmartBattery": [{}, {"CycleCount": 5}]})");
}

void InspectionTest::batteries()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, expected);
    const auto machine = changedMachine(changes);
    const auto info = DeviceProbe::batteryInfo(*machine);
    const QString actual = info ? u"%1 %2 %3 %4 %5"_s.arg(info->level)
                                      .arg(info->isCharging)
                                      .arg(info->onAC)
                                      .arg(info->health.value_or(u"-"_s),
                                           info->cycleCount ? QString::number(*info->cycleCount) : u"-"_s)
                                : u"no battery"_s;
    QCOMPARE(actual, expected);
    QCOMPARE(DeviceProbe::summary(*machine, english).hasBattery, info.has_value());
}

void InspectionTest::smallProbes()
{
    using platform::AuthorizationStatus;
    const auto machine = changedMachine(R"({
        "videoEncoders": [{"codecType": "avc1"}, {"codecType": "hvc1", "isHardwareAccelerated": true},
            {"codecType": "jpeg", "isHardwareAccelerated": false}, {"codecType": "hvc1"},
            {"codecType": "hvc1", "isHardwareAccelerated": true}, {"codecType": "ap4h", "isHardwareAccelerated": true}],
        "interfaces": [
            {"name": "lo0", "family": "ipv4", "up": true, "loopback": true, "address": "127.0.0.1"},
            {"name": "en5", "family": "ipv4", "up": true, "address": "192.0.2.9"},
            {"name": "en0", "family": "link", "up": true},
            {"name": "en0", "family": "ipv4", "up": true, "address": "192.0.2.7"},
            {"name": "en0", "family": "ipv6", "up": true, "address": "2001:db8::1"},
            {"name": "en0", "family": "ipv4", "up": true, "address": "198.51.100.3"},
            {"name": "en1", "family": "ipv4", "up": false, "address": "192.0.2.8"},
            {"name": "utun3", "family": "ipv4", "up": true}]})");
    QCOMPARE(DeviceProbe::hardwareEncoders(*machine), (QSet<std::uint32_t>{0x68766331, 0x61703468}));
    QVERIFY(DeviceProbe::hardwareEncoders(*changedMachine()).isEmpty());
    QCOMPARE(DeviceProbe::ipv4Addresses(*machine),
             (QList<std::pair<QString, QString>>{
                 {u"en5"_s, u"192.0.2.9"_s}, {u"en0"_s, u"192.0.2.7"_s}, {u"en0"_s, u"198.51.100.3"_s}}));
    QVERIFY(DeviceProbe::ipv4Addresses(*changedMachine()).isEmpty());

    QCOMPARE(DeviceProbe::fourCC("hvc1"), 0x68766331u);
    QCOMPARE(DeviceProbe::fourCC("é"), 0xC3A9u); // bytes of UTF-8, none of them negative
    QCOMPARE(DeviceProbe::fourCC("abcde"), 0x62636465u);
    QCOMPARE(DeviceProbe::fourCC(""), 0u);

    QCOMPARE(DeviceProbe::describe(AuthorizationStatus::NotDetermined), u"Not requested yet"_s);
    QCOMPARE(DeviceProbe::describe(AuthorizationStatus::Restricted), u"Restricted"_s);
    QCOMPARE(DeviceProbe::describe(AuthorizationStatus::Denied), u"Denied"_s);
    QCOMPARE(DeviceProbe::describe(AuthorizationStatus::Authorized), u"Allowed"_s);
    QCOMPARE(DeviceProbe::describe(AuthorizationStatus{4}), u"Unknown"_s);
    QCOMPARE(DeviceProbe::describe(AuthorizationStatus{-1}), u"Unknown"_s);
}

/// What holds for every section of every recording.
void InspectionTest::sectionsAndRows()
{
    for (const auto &name : recordingNames()) {
        const auto machine = machineFrom(recordingText(name));
        const auto sections = DeviceProbe::sections(*machine, english, machine->network().currentPath());
        QStringList sectionKeys;
        QSet<QUuid> ids;
        qsizetype things = 0;
        for (const auto &section : sections) {
            sectionKeys += section.key.value_or(u"(no key)"_s);
            QVERIFY2(!section.title.isEmpty() && !section.symbol.isEmpty(), qPrintable(name));
            ids += section.id;
            ++things;
            QSet<QString> rowKeys;
            for (const auto &item : section.items) {
                const auto where = qPrintable(name + u": "_s + support::line(item));
                QVERIFY2(item.key && !item.key->isEmpty() && !rowKeys.contains(*item.key), where);
                QVERIFY2(!item.label.isEmpty() && !item.value.isEmpty(), where);
                rowKeys += *item.key;
                ids += item.id;
                ++things;
            }
        }
        QCOMPARE(sectionKeys, DeviceProbe::sectionKeys());
        QCOMPARE(ids.size(), things);
        QVERIFY(!ids.contains(QUuid()));
    }
}

void InspectionTest::countsAndScore_data()
{
    QTest::addColumn<QStringList>("sections");
    QTest::addColumn<QString>("expected"); // supported unsupported warning info, score, percent
    QTest::newRow("no sections") << QStringList{} << u"0 0 0 0, 0, 0"_s;
    QTest::newRow("an empty section") << QStringList{u""_s} << u"0 0 0 0, 0, 0"_s;
    QTest::newRow("only facts") << QStringList{u"iii"_s} << u"0 0 0 3, 0, 0"_s;
    QTest::newRow("a half") << QStringList{u"ssw"_s, u""_s, u"uiii"_s} << u"2 1 1 3, 0.5, 50"_s;
    QTest::newRow("everything") << QStringList{u"sis"_s} << u"2 0 0 1, 1, 100"_s;
    QTest::newRow("nothing") << QStringList{u"uw"_s} << u"0 1 1 0, 0, 0"_s;
    QTest::newRow("two thirds") << QStringList{u"ssu"_s} << u"2 1 0 0, 0.6666666666666666, 67"_s;
    QTest::newRow("one of eight is rounded up") << QStringList{u"suuuuuuu"_s} << u"1 7 0 0, 0.125, 13"_s;
    QTest::newRow("almost everything is not 100")
        << QStringList{QString(300, u's'), u"w"_s} << u"300 0 1 0, 0.9966777408637874, 99"_s;
}

void InspectionTest::countsAndScore()
{
    QFETCH(const QStringList, sections);
    QList<CapabilitySection> all;
    for (const auto &letters : sections)
        all += sectionWith(letters);
    QStringList counts;
    for (const auto status : allStatuses)
        counts += QString::number(count(all, status));
    const auto actual = u"%1, %2, %3"_s.arg(counts.join(u' '))
                            .arg(capabilityScore(all), 0, 'g', QLocale::FloatingPointShortest)
                            .arg(scorePercent(all));
    QTEST(actual, "expected");
}

/// Equal means every field, the identity of the row included; equal values have one hash.
void InspectionTest::equality()
{
    const CapabilityItem item{.label = u"L"_s, .value = u"V"_s, .key = u"k"_s};
    auto copy = item;
    QVERIFY(copy == item && qHash(copy) == qHash(item));
    for (const auto &change : std::initializer_list<std::function<void(CapabilityItem &)>>{
             [](CapabilityItem &c) { c.id = QUuid::createUuid(); },
             [](CapabilityItem &c) { c.label += u'x'; }, [](CapabilityItem &c) { c.value += u'x'; },
             [](CapabilityItem &c) { c.status = CapabilityStatus::Warning; },
             [](CapabilityItem &c) { c.key.reset(); }, [](CapabilityItem &c) { c.isVolatile = true; }}) {
        copy = item;
        change(copy);
        QVERIFY(copy != item);
    }
    const CapabilitySection section{.title = u"T"_s, .items = {item}};
    auto other = section;
    QVERIFY(other == section && qHash(other) == qHash(section));
    other.items.first().value += u'x';
    QVERIFY(other != section);
}

void InspectionTest::whatIsAskedIsRecorded_data()
{
    QTest::addColumn<bool>("arm64");
    QTest::addColumn<QByteArray>("changes");
    for (const bool arm64 : {true, false}) {
        QTest::newRow(arm64 ? "Apple silicon" : "Intel") << arm64 << QByteArray("{}");
        QTest::newRow(arm64 ? "Arm Linux" : "x86 Linux")
            << arm64
            << QByteArray(arm64 ? R"({"instructionSet": "arm64", "words": {}})"
                                : R"({"instructionSet": "x86_64"})");
    }
}

/// A kernel value or registry class that an inspection asks for and a recording leaves out would make the
/// recording answer otherwise than its machine.
void InspectionTest::whatIsAskedIsRecorded()
{
    QFETCH(const bool, arm64);
    QFETCH(const QByteArray, changes);
    const auto battery =
        merged(QJsonDocument::fromJson(changes).object(),
               QJsonDocument::fromJson(R"({"powerSources": [{"Type": "InternalBattery"}]})").object());
    const auto recording = changedMachine(QJsonDocument(battery).toJson());
    const TalkativeKernel kernel(arm64);
    const TalkativeRegistry registry;
    ChangedMachine machine(*recording);
    machine.otherKernelValues = &kernel;
    machine.otherRegistry = &registry;
    const auto summary = DeviceProbe::summary(machine, english);
    const auto sections = sectionsOf(machine);
    const auto askedValues = kernel.asked;
    const auto askedClasses = registry.asked;
    QVERIFY(askedValues.contains("hw.model") && askedClasses.contains("AppleSmartBattery"));

    const auto again =
        machineFrom(QByteArray::fromStdString(recordMachine(machine, platform::RecordedNames::Keep)));
    for (const auto &name : askedValues)
        QVERIFY2(again->kernelValues().read(name) == kernel.read(name), name.c_str());
    for (const auto &name : askedClasses)
        QVERIFY2(again->registry().services(name) == registry.services(name), name.c_str());
    QCOMPARE(lines(DeviceProbe::summary(*again, english)), lines(summary));
    const auto sectionsAgain = sectionsOf(*again);
    QCOMPARE(sectionsAgain.size(), sections.size());
    for (qsizetype i = 0; i < sections.size(); ++i)
        QVERIFY(sameLines(support::lines(sectionsAgain[i]), support::lines(sections[i])));
}

void InspectionTest::modelFollowsThePath()
{
    Watched watched;
    auto &model = *watched.model;
    QStringList states; // what an observer finds each time the results are said to be new
    connect(&model, &inspection::Quillmark::refreshed, this, [&] {
        states += u"%1 %2 %3 %4"_s.arg(model.summary().value_or(DeviceSummary{}).deviceName)
                      .arg(model.sections().isEmpty() ? u"-"_s : model.sections().first().items.first().value)
                      .arg(model.lastUpdated().has_value())
                      .arg(model.networkPath() && model.networkPath()->isExpensive);
    });
    QVERIFY(!model.summary() && model.sections().isEmpty() && !model.lastUpdated() && !model.networkPath());
    QCOMPARE(model.count(CapabilityStatus::Info), 0);
    QCOMPARE(model.score(), 0.0);
    model.copyReport();
    QCOMPARE(watched.pasteboard.notes, (QStringList{u"clear"_s, u"0 sections, no date"_s}));

    // A report waits for the event loop: nothing changes in the middle of what this thread does.
    // Several at once are one inspection, with the last.
    QVERIFY(watched.network.report(true));
    QVERIFY(watched.network.report(false));
    QVERIFY(!model.summary() && states.isEmpty());
    QTRY_COMPARE(states, QStringList{u"Test Mac Test Mac 1 0"_s});
    const auto firstDate = *model.lastUpdated();
    QCOMPARE(model.count(CapabilityStatus::Info), count(model.sections(), CapabilityStatus::Info));
    QCOMPARE(model.score(), capabilityScore(model.sections()));

    watched.machine.otherSystem = &watched.renamed->system();
    QVERIFY(watched.network.report(true));
    QTRY_COMPARE(states.size(), 2);
    QCOMPARE(states.last(), u"Renamed Renamed 1 1"_s);
    QVERIFY(*model.lastUpdated() >= firstDate);

    watched.pasteboard.notes.clear();
    model.copyReport();
    QCOMPARE(watched.pasteboard.notes,
             (QStringList{u"clear"_s, u"%1 sections, dated"_s.arg(model.sections().size())}));
}

void InspectionTest::modelWithoutPath()
{
    const auto machine = changedMachine();
    const language::LanguageManager language({u"en"_s});
    NotedPasteboard pasteboard;
    inspection::Quillmark model(*machine, language, pasteboard, reportText);
    const QSignalSpy refreshed(&model, &inspection::Quillmark::refreshed);
    QCoreApplication::processEvents();
    QCOMPARE(refreshed.size(), 0);
    model.refresh();
    QCOMPARE(refreshed.size(), 1);
    QVERIFY(model.summary() && !model.sections().isEmpty() && model.lastUpdated() && !model.networkPath());
}

void InspectionTest::modelThatIsGoneGetsNothing()
{
    Watched watched;
    int refreshes = 0;
    connect(watched.model.get(), &inspection::Quillmark::refreshed, this, [&refreshes] { ++refreshes; });
    QCOMPARE(watched.network.watches.load(), 1);
    QVERIFY(watched.network.report(false)); // on its way when the model goes
    watched.model.reset();
    QCoreApplication::processEvents();
    QCOMPARE(refreshes, 0);
    QCOMPARE(watched.network.watches.load(), 0);
    QVERIFY(!watched.network.report(true)); // nobody is left to be told
}

QTEST_GUILESS_MAIN(InspectionTest)
#include "InspectionTest.moc"
