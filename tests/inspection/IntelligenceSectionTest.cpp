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

/// The changes for a Mac with a system of this version and an answer of the language model.
QByteArray mac(int system, const QByteArray &state, const QByteArray &arm64 = "1")
{
    return "{\"operatingSystem\": {\"major\": " + QByteArray::number(system) +
           "}, \"languageModel\": {\"state\": " + state + "}, \"sysctl\": {\"hw.optional.arm64\": " + arm64 +
           "}}";
}

/// The changes for a computer with Linux, on x86 unless the members say otherwise.
QByteArray linuxWith(const QByteArray &members)
{
    return R"({"operatingSystem": {"name": "Debian GNU/Linux"}, "instructionSet": "x86_64",
               "sysctl": {"hw.optional.arm64": null}, )" +
           members + "}";
}

} // namespace

class IntelligenceSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oddMachines_data();
    void oddMachines();
};

void IntelligenceSectionTest::oddMachines_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("expected"); // lines, as hasRows() takes them
    const auto row = [](const char *name, const QByteArray &changes, const QString &expected) {
        QTest::newRow(name) << changes << expected;
    };

    const auto unsupported = u"appleIntelligence | Not supported | unsupported"_s;
    const auto update = u"appleIntelligence | Requires macOS 26 | unsupported"_s;
    row("Intel on 15: no update would help", mac(15, "5", "null"), unsupported);
    row("Intel on 26, whatever is answered", mac(26, "0", "0"), unsupported);
    row("Apple silicon on 15", mac(15, "5"), update);
    row("Apple silicon on 25, whatever is answered", mac(25, "0"), update);
    row("available", mac(26, "0"), u"appleIntelligence | Available | supported"_s);
    row("not eligible", mac(26, "1"), unsupported);
    row("turned off", mac(26, "2"), u"appleIntelligence | Turned off in System Settings | warning"_s);
    row("not ready", mac(26, "3"),
        u"appleIntelligence | Not ready (downloading, or not offered for this language or region) | warning"_s);
    row("unknown", mac(26, "4"), u"appleIntelligence | Not readable | info"_s);
    row("built for an older system", mac(26, "5"), update);
    row("no answer", R"({"operatingSystem": {"major": 26}})", u"appleIntelligence | Not readable | info"_s);

    const auto devices = [&row](const char *name, const QByteArray &list, const QString &expected,
                                int system = 14, int guest = 0) {
        row(name,
            "{\"operatingSystem\": {\"major\": " + QByteArray::number(system) + "}, \"computeDevices\": " +
                list + ", \"sysctl\": {\"kern.hv_vmm_present\": " + QByteArray::number(guest) + "}}",
            expected);
    };
    devices("before the list was there", R"([{"kind": "gpu"}])", u"coreML absent"_s, 13);
    devices("Neural Engine named first",
            R"([{"kind": "neuralEngine"}, {"kind": "cpu"}, {"kind": "gpu"}, {"kind": "gpu"}])",
            u"coreML | GPU and Neural Engine | supported"_s);
    devices("cores not told", R"([{"kind": "neuralEngine"}])", u"neuralEngineCores | Not readable | info"_s);
    devices("no cores", R"([{"kind": "neuralEngine", "totalCoreCount": 0}])",
            u"neuralEngineCores | Not readable | info"_s);
    devices("cores", R"([{"kind": "neuralEngine", "totalCoreCount": 32}])",
            u"neuralEngineCores | 32 | info"_s);
    devices("cores of another device", R"([{"kind": "gpu", "totalCoreCount": 32}])",
            u"neuralEngineCores absent"_s);
    devices("processor alone", R"([{"kind": "cpu"}])", u"coreML | CPU only | warning"_s);
    devices("processor alone in a guest", R"([{"kind": "cpu"}])", u"coreML | CPU only | info"_s, 26, 1);
    devices("a kind that is not known yet", R"([{"kind": "cpu"}, {"kind": "other"}])",
            u"coreML | Not readable | info"_s);
    devices("an empty list", "[]", u"coreML | Not readable | info"_s);

    row("one core", R"({"registry": {"AGXAccelerator": {"gpu-core-count": 1}}})", u"gpuCores | 1 | info"_s);
    row("GPU cores of the service that tells",
        R"({"registry": {"AGXAccelerator": [{}, {"gpu-core-count": 80}]}})", u"gpuCores | 80 | info"_s);
    row("no GPU cores", R"({"registry": {"AGXAccelerator": {"gpu-core-count": 0}}})", u"gpuCores absent"_s);
    row("GPU cores that are no number", R"({"registry": {"AGXAccelerator": {"gpu-core-count": "10"}}})",
        u"gpuCores absent"_s);

    const QByteArray arm = R"("instructionSet": "arm64", "sysctl": {"hw.optional.arm.FEAT_I8MM": )";
    row("a Mac's kernel that does not know the flag", "{}", u"i8mm | Not supported | unsupported"_s);
    row("flag set", R"({"sysctl": {"hw.optional.arm.FEAT_I8MM": 1}})", u"i8mm | Supported | supported"_s);
    row("another processor", linuxWith(R"("graphics": null)"), u"i8mm absent"_s);
    row("Linux kernel that tells no features", linuxWith(arm + "null}"), u"i8mm | Not readable | info"_s);
    row("Linux kernel without the feature", linuxWith(arm + "0}"), u"i8mm | Not supported | unsupported"_s);

    row("accelerators with and without drivers",
        linuxWith(R"("accelerators": [{"name": "accel0", "driver": "amdxdna"}, {"name": "0000:00:0b.0"},
                                      {"name": "accel1", "driver": "amdxdna"}, {"name": "accel2", "driver": "rocket"}])"),
        u"npu | amdxdna and rocket | supported"_s);
    row("accelerator without a driver", linuxWith(R"("accelerators": [{"name": "0000:00:0b.0"}])"),
        u"npu | Found, no driver | warning"_s);
    row("nodes of which one may be opened",
        linuxWith(R"("renderNodes": [{"name": "renderD128", "driver": "i915"},
                                     {"name": "renderD129", "driver": "nvidia", "accessible": true}])"),
        u"gpuCompute | nvidia | supported"_s);
    row("nodes that may not be opened",
        linuxWith(R"("renderNodes": [{"name": "renderD128", "driver": "i915"}])"),
        u"gpuCompute | No permission | warning"_s);
    row("a node that names no driver",
        linuxWith(R"("renderNodes": [{"name": "renderD128", "accessible": true}])"),
        u"gpuCompute | Not readable | info"_s);
    row("Linux with neither", linuxWith(R"("accelerators": [], "renderNodes": [])"),
        u"*npu | None | info\ngpuCompute | None | info"_s);

    row("answers of the other system are not asked for",
        linuxWith(R"("languageModel": {"state": 0}, "computeDevices": [{"kind": "gpu"}],
                     "accelerators": [], "renderNodes": [])"),
        u"*npu | None | info\ngpuCompute | None | info"_s);
}

void IntelligenceSectionTest::oddMachines()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, expected);
    const auto section =
        DeviceProbe::intelligenceSection(*changedMachine(changes), language::Formats(u"en"_s));
    QVERIFY(hasRows(section, expected.split(u'\n')));
}

QTEST_GUILESS_MAIN(IntelligenceSectionTest)
#include "IntelligenceSectionTest.moc"
