// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::ComputeDevice;

constexpr std::int32_t firstSystemWithLanguageModel = 26;
constexpr std::int32_t firstSystemWithComputeDevices = 14;

/// The kernel of an Intel Mac has no such value, so that its lack means something only if the kernel answers.
bool knowsWhetherAppleSilicon(const platform::Machine &machine)
{
    return sysctlInt(machine, "hw.optional.arm64") || sysctlString(machine, "machdep.cpu.brand_string");
}

std::optional<Verdict> languageModelVerdict(std::optional<std::int32_t> state)
{
    switch (state.value_or(-1)) {
    case 0:
        return Verdict{Text::tr("Available"), CapabilityStatus::Supported};
    case 1:
        return Verdict{Text::tr("Not supported"), CapabilityStatus::Unsupported};
    case 2:
        return Verdict{Text::tr("Turned off in System Settings"), CapabilityStatus::Warning};
    case 3:
        return Verdict{Text::tr("Not ready (downloading, or not offered for this language or region)"),
                       CapabilityStatus::Warning};
    case 5:
        return Verdict{Text::tr("Requires macOS 26"), CapabilityStatus::Unsupported};
    default:
        return std::nullopt;
    }
}

/// The chip comes before the version: an Intel Mac must not be told that an update would help.
std::optional<Verdict> appleIntelligenceVerdict(const platform::Machine &machine)
{
    if (!isAppleSilicon(machine))
        return knowsWhetherAppleSilicon(machine)
                   ? std::optional(Verdict{Text::tr("Not supported"), CapabilityStatus::Unsupported})
                   : std::nullopt;
    if (machine.system().operatingSystem().major < firstSystemWithLanguageModel)
        return Verdict{Text::tr("Requires macOS 26"), CapabilityStatus::Unsupported};
    // FoundationModels: SystemLanguageModel.default.availability
    return languageModelVerdict(machine.intelligence().languageModelState());
}

std::optional<Verdict> coreMLVerdict(const platform::Machine &machine,
                                     const std::optional<std::vector<ComputeDevice>> &devices,
                                     const language::Formats &formats)
{
    if (!devices || devices->empty())
        return std::nullopt;
    const auto has = [&devices](ComputeDevice::Kind kind) {
        return std::ranges::find(*devices, kind, &ComputeDevice::kind) != devices->end();
    };
    QStringList kinds;
    if (has(ComputeDevice::Kind::Gpu))
        kinds += Text::tr("GPU");
    if (has(ComputeDevice::Kind::NeuralEngine))
        kinds += Text::tr("Neural Engine");
    if (!kinds.isEmpty())
        return Verdict{formats.list(kinds), CapabilityStatus::Supported};
    // A kind of device that is not known yet may well be faster than the processor.
    if (has(ComputeDevice::Kind::Other))
        return std::nullopt;
    const bool isGuest = isVirtualMachine(machine);
    return Verdict{Text::tr("CPU only"), isGuest ? CapabilityStatus::Info : CapabilityStatus::Warning};
}

QList<CapabilityItem> coreMLItems(const platform::Machine &machine, const language::Formats &formats)
{
    if (machine.system().operatingSystem().major < firstSystemWithComputeDevices)
        return {};
    // Core ML: the classes of MLAllComputeDevices
    const auto devices = machine.intelligence().computeDevices();
    QList<CapabilityItem> items = {
        judged(u"coreML"_s, Text::tr("Core ML acceleration"), coreMLVerdict(machine, devices, formats))};
    for (const auto &device : devices.value_or(std::vector<ComputeDevice>())) {
        if (device.kind != ComputeDevice::Kind::NeuralEngine)
            continue;
        // Core ML: MLNeuralEngineComputeDevice.totalCoreCount
        const auto cores = device.totalCoreCount.value_or(0);
        items += fact(u"neuralEngineCores"_s, Text::tr("Neural Engine cores"),
                      cores >= 1 ? wholeNumber(cores, formats) : notReadable());
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
            return {fact(u"gpuCores"_s, Text::tr("GPU cores"), wholeNumber(cores, formats))};
    }
    return {};
}

QList<CapabilityItem> matrixItems(const platform::Machine &machine)
{
    if (instructionSet(machine) != platform::InstructionSet::Arm64)
        return {};
    // Kernel: hw.optional.arm.FEAT_I8MM; a Mac's kernel leaves out flags of features that it does not know.
    const auto flag = sysctlInt(machine, "hw.optional.arm.FEAT_I8MM");
    const bool isTold = flag || isMac(machine);
    return {capability(u"i8mm"_s, Text::tr("Int8 matrix instructions"),
                       isTold ? std::optional(flag == 1) : std::nullopt)};
}

QString listOfDrivers(QStringList drivers, const language::Formats &formats)
{
    drivers.removeDuplicates();
    return formats.list(drivers);
}

std::optional<Verdict> neuralProcessorVerdict(const platform::Machine &machine,
                                              const language::Formats &formats)
{
    // Linux: the accelerators of /sys/class/accel and of the PCI bus, by their drivers
    const auto accelerators = machine.intelligence().accelerators();
    if (!accelerators)
        return std::nullopt;
    QStringList drivers;
    for (const auto &accelerator : *accelerators) {
        if (accelerator.driver)
            drivers += QString::fromStdString(*accelerator.driver);
    }
    if (!drivers.isEmpty())
        return Verdict{listOfDrivers(drivers, formats), CapabilityStatus::Supported};
    if (!accelerators->empty())
        return Verdict{Text::tr("Found, no driver"), CapabilityStatus::Warning};
    //: Of a processor, a camera, a device: there is none.
    return Verdict{Text::tr("None")};
}

std::optional<Verdict> gpuComputeVerdict(const platform::Machine &machine, const language::Formats &formats)
{
    // Linux: the drivers of /sys/class/drm/renderD*, and whether this user may open the nodes
    const auto nodes = machine.intelligence().renderNodes();
    if (!nodes)
        return std::nullopt;
    if (nodes->empty())
        return Verdict{Text::tr("None")};
    if (std::ranges::none_of(*nodes, &platform::RenderNode::accessible))
        return Verdict{Text::tr("No permission"), CapabilityStatus::Warning};
    QStringList drivers;
    for (const auto &node : *nodes) {
        if (node.accessible && node.driver)
            drivers += QString::fromStdString(*node.driver);
    }
    if (drivers.isEmpty())
        return std::nullopt;
    return Verdict{listOfDrivers(drivers, formats), CapabilityStatus::Supported};
}

} // namespace

CapabilitySection intelligenceSection(const platform::Machine &machine, const language::Formats &formats)
{
    QList<CapabilityItem> items;
    if (isMac(machine)) {
        items += judged(u"appleIntelligence"_s, u"Apple Intelligence"_s, appleIntelligenceVerdict(machine));
        items += coreMLItems(machine, formats);
        items += gpuCoreItems(machine, formats);
        items += matrixItems(machine);
    } else {
        items += matrixItems(machine);
        items += judged(u"npu"_s, Text::tr("Neural processor"), neuralProcessorVerdict(machine, formats));
        items += judged(u"gpuCompute"_s, Text::tr("GPU computing"), gpuComputeVerdict(machine, formats));
    }
    return sectionOf(u"intelligence", std::move(items));
}

} // namespace quillmark::inspection::DeviceProbe
