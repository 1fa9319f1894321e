// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::ComputeDevice;

constexpr std::int32_t firstSystemWithLanguageModel = 26;
constexpr std::int32_t firstSystemWithComputeDevices = 14;

struct Verdict
{
    QString value;
    CapabilityStatus status = CapabilityStatus::Info;
};

CapabilityItem rowOf(const QString &key, const QString &label, const Verdict &verdict)
{
    return {.label = label, .value = verdict.value, .status = verdict.status, .key = key};
}

/// The kernel of an Intel Mac has no such value, so that its lack means something only if the kernel answers.
bool knowsWhetherAppleSilicon(const platform::Machine &machine)
{
    return sysctlInt(machine, "hw.optional.arm64") || sysctlString(machine, "machdep.cpu.brand_string");
}

Verdict languageModelVerdict(std::optional<std::int32_t> state)
{
    switch (state.value_or(-1)) {
    case 0:
        return {Text::tr("Available"), CapabilityStatus::Supported};
    case 1:
        return {Text::tr("Not supported"), CapabilityStatus::Unsupported};
    case 2:
        return {Text::tr("Turned off in System Settings"), CapabilityStatus::Warning};
    case 3:
        return {Text::tr("Not ready (downloading, or not offered for this language or region)"),
                CapabilityStatus::Warning};
    case 5:
        return {Text::tr("Requires macOS 26"), CapabilityStatus::Unsupported};
    default:
        return {notReadable()};
    }
}

/// The chip comes before the version: an Intel Mac must not be told that an update would help.
Verdict appleIntelligenceVerdict(const platform::Machine &machine)
{
    if (!isAppleSilicon(machine))
        return knowsWhetherAppleSilicon(machine)
                   ? Verdict{Text::tr("Not supported"), CapabilityStatus::Unsupported}
                   : Verdict{notReadable()};
    if (machine.system().operatingSystem().major < firstSystemWithLanguageModel)
        return {Text::tr("Requires macOS 26"), CapabilityStatus::Unsupported};
    // FoundationModels: SystemLanguageModel.default.availability
    return languageModelVerdict(machine.intelligence().languageModelState());
}

Verdict coreMLVerdict(const platform::Machine &machine,
                      const std::optional<std::vector<ComputeDevice>> &devices,
                      const language::Formats &formats)
{
    if (!devices || devices->empty())
        return {notReadable()};
    const auto has = [&devices](ComputeDevice::Kind kind) {
        return std::ranges::find(*devices, kind, &ComputeDevice::kind) != devices->end();
    };
    QStringList kinds;
    if (has(ComputeDevice::Kind::Gpu))
        kinds += Text::tr("GPU");
    if (has(ComputeDevice::Kind::NeuralEngine))
        kinds += Text::tr("Neural Engine");
    if (!kinds.isEmpty())
        return {formats.list(kinds), CapabilityStatus::Supported};
    // A kind of device that is not known yet may well be faster than the processor.
    if (has(ComputeDevice::Kind::Other))
        return {notReadable()};
    const bool isGuest = sysctlFlag(machine, "kern.hv_vmm_present");
    return {Text::tr("CPU only"), isGuest ? CapabilityStatus::Info : CapabilityStatus::Warning};
}

QList<CapabilityItem> coreMLItems(const platform::Machine &machine, const language::Formats &formats)
{
    if (machine.system().operatingSystem().major < firstSystemWithComputeDevices)
        return {};
    // Core ML: the classes of MLAllComputeDevices
    const auto devices = machine.intelligence().computeDevices();
    QList<CapabilityItem> items = {
        rowOf(u"coreML"_s, Text::tr("Core ML acceleration"), coreMLVerdict(machine, devices, formats))};
    for (const auto &device : devices.value_or(std::vector<ComputeDevice>())) {
        if (device.kind != ComputeDevice::Kind::NeuralEngine)
            continue;
        // Core ML: MLNeuralEngineComputeDevice.totalCoreCount
        const auto cores = device.totalCoreCount.value_or(0);
        items += fact(u"neuralEngineCores"_s, Text::tr("Neural Engine cores"),
                      cores >= 1 ? formats.number(static_cast<double>(cores)) : notReadable());
        break;
    }
    return items;
}

QList<CapabilityItem> gpuCoreItems(const platform::Machine &machine, const language::Formats &formats)
{
    // I/O registry: gpu-core-count of AGXAccelerator
    for (const auto &service : machine.registry().services("AGXAccelerator")) {
        const auto cores = platform::get<std::int64_t>(service, "gpu-core-count").value_or(0);
        if (cores >= 1)
            return {fact(u"gpuCores"_s, Text::tr("GPU cores"), formats.number(static_cast<double>(cores)))};
    }
    return {};
}

QList<CapabilityItem> matrixItems(const platform::Machine &machine)
{
    if (instructionSet(machine) != platform::InstructionSet::Arm64)
        return {};
    const auto label = Text::tr("Int8 matrix instructions");
    // Kernel: hw.optional.arm.FEAT_I8MM; a Mac's kernel leaves out flags of features that it does not know.
    const auto flag = sysctlInt(machine, "hw.optional.arm.FEAT_I8MM");
    if (!flag && !isMac(machine))
        return {fact(u"i8mm"_s, label, notReadable())};
    return {capability(u"i8mm"_s, label, flag == 1)};
}

QString listOfDrivers(QStringList drivers, const language::Formats &formats)
{
    drivers.removeDuplicates();
    return formats.list(drivers);
}

Verdict neuralProcessorVerdict(const platform::Machine &machine, const language::Formats &formats)
{
    // Linux: the accelerators of /sys/class/accel and of the PCI bus, by their drivers
    const auto accelerators = machine.intelligence().accelerators();
    if (!accelerators)
        return {notReadable()};
    QStringList drivers;
    for (const auto &accelerator : *accelerators) {
        if (accelerator.driver)
            drivers += QString::fromStdString(*accelerator.driver);
    }
    if (!drivers.isEmpty())
        return {listOfDrivers(drivers, formats), CapabilityStatus::Supported};
    if (!accelerators->empty())
        return {Text::tr("Found, no driver"), CapabilityStatus::Warning};
    return {Text::tr("None")};
}

Verdict gpuComputeVerdict(const platform::Machine &machine, const language::Formats &formats)
{
    // Linux: the drivers of /sys/class/drm/renderD*, and whether this user may open the nodes
    const auto nodes = machine.intelligence().renderNodes();
    if (!nodes)
        return {notReadable()};
    if (nodes->empty())
        return {Text::tr("None")};
    if (std::ranges::none_of(*nodes, &platform::RenderNode::accessible))
        return {Text::tr("No permission"), CapabilityStatus::Warning};
    QStringList drivers;
    for (const auto &node : *nodes) {
        if (node.accessible && node.driver)
            drivers += QString::fromStdString(*node.driver);
    }
    if (drivers.isEmpty())
        return {notReadable()};
    return {listOfDrivers(drivers, formats), CapabilityStatus::Supported};
}

} // namespace

CapabilitySection intelligenceSection(const platform::Machine &machine, const language::Formats &formats)
{
    QList<CapabilityItem> items;
    if (isMac(machine)) {
        items += rowOf(u"appleIntelligence"_s, u"Apple Intelligence"_s, appleIntelligenceVerdict(machine));
        items += coreMLItems(machine, formats);
        items += gpuCoreItems(machine, formats);
        items += matrixItems(machine);
    } else {
        items += matrixItems(machine);
        items += rowOf(u"npu"_s, Text::tr("Neural processor"), neuralProcessorVerdict(machine, formats));
        items += rowOf(u"gpuCompute"_s, Text::tr("GPU computing"), gpuComputeVerdict(machine, formats));
    }
    return {.title = Text::tr("Artificial Intelligence"),
            .symbol = u"sparkles"_s,
            .items = std::move(items),
            .key = u"intelligence"_s};
}

} // namespace quillmark::inspection::DeviceProbe
