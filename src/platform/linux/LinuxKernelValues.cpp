// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxKernelValues.h"

#include "platform/KernelRecord.h"
#include "platform/linux/MemoryFiles.h"
#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>

namespace quillmark::platform {

namespace {

/// A processor's feature, or one that a hypervisor adds: the name that macOS gives its flag, and the kernel's
/// word in the list of features.
struct Feature
{
    std::string_view name;
    ProcessorFamily family;
    std::string_view word;
};

constexpr std::array features = {
    Feature{"hw.optional.avx2_0", ProcessorFamily::X86, "avx2"},
    Feature{"hw.optional.avx512f", ProcessorFamily::X86, "avx512f"},
    Feature{"hw.optional.arm.FEAT_SME", ProcessorFamily::Arm, "sme"},
    Feature{"hw.optional.arm.FEAT_BF16", ProcessorFamily::Arm, "bf16"},
    Feature{"hw.optional.arm.FEAT_I8MM", ProcessorFamily::Arm, "i8mm"},
    Feature{"kern.hv_vmm_present", ProcessorFamily::X86, "hypervisor"},
};

bool equalsIgnoringCase(std::string_view left, std::string_view right)
{
    const auto lower = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    return std::ranges::equal(left, right, {}, lower, lower);
}

/// What firmware carries where its maker has entered no name.
bool isFiller(std::string_view name)
{
    constexpr std::array<std::string_view, 17> fillers = {"To Be Filled By O.E.M.",
                                                          "O.E.M.",
                                                          "OEM",
                                                          "System Product Name",
                                                          "Product Name",
                                                          "System Name",
                                                          "Base Board Product Name",
                                                          "Default string",
                                                          "Default",
                                                          "Not Specified",
                                                          "Not Applicable",
                                                          "Not Available",
                                                          "Undefined",
                                                          "Unknown",
                                                          "None",
                                                          "N/A",
                                                          "INVALID"};
    return std::ranges::any_of(fillers,
                               [name](std::string_view filler) { return equalsIgnoringCase(name, filler); });
}

template <typename Number>
std::optional<Bytes> optionalRecord(const std::optional<Number> &number)
{
    return number ? std::optional(numberRecord(*number)) : std::nullopt;
}

} // namespace

LinuxKernelValues::LinuxKernelValues(const Files &files, const LinuxProcessor &processor)
    : m_files(files)
    , m_processor(processor)
{}

std::optional<Bytes> LinuxKernelValues::read(std::string_view name) const
{
    if (name == "hw.model")
        return model();
    if (name == "machdep.cpu.brand_string") {
        const auto &brand = m_processor.info().name;
        return brand ? std::optional(textRecord(*brand)) : std::nullopt;
    }
    if (name == "hw.cpufrequency_max")
        return optionalRecord(m_processor.maximumFrequency());
    if (name == "vm.swapusage")
        return swap();
    if (name == "kern.memorystatus_vm_pressure_level")
        return pressure();
    if (name.starts_with("hw.optional.") || name == "kern.hv_vmm_present")
        return feature(name);
    return cores(name);
}

const std::optional<Bytes> &LinuxKernelValues::model() const
{
    std::call_once(m_modelRead, [this] {
        for (const std::string_view path :
             {"/sys/class/dmi/id/product_name", "/sys/class/dmi/id/board_name", "/proc/device-tree/model",
              "/sys/firmware/devicetree/base/model"}) {
            const auto name = m_files.value(path);
            if (name && !isFiller(*name)) {
                m_model = textRecord(*name);
                return;
            }
        }
    });
    return m_model;
}

std::optional<Bytes> LinuxKernelValues::cores(std::string_view name) const
{
    constexpr std::string_view levelPrefix = "hw.perflevel";
    constexpr std::string_view levelSuffix = ".physicalcpu";
    const bool isLevel = name.starts_with(levelPrefix) && name.ends_with(levelSuffix);
    if (!isLevel && name != "hw.logicalcpu" && name != "hw.physicalcpu" && name != "hw.nperflevels")
        return std::nullopt;
    const auto layout = m_processor.layout();
    if (layout && name == "hw.logicalcpu")
        return numberRecord(layout->logical);
    if (!layout || layout->coresByLevel.empty())
        return std::nullopt;
    const auto &levels = layout->coresByLevel;
    if (name == "hw.physicalcpu")
        return numberRecord(std::accumulate(levels.begin(), levels.end(), std::int32_t{0}));
    if (name == "hw.nperflevels")
        return numberRecord(static_cast<std::int32_t>(levels.size()));
    name.remove_prefix(levelPrefix.size());
    name.remove_suffix(levelSuffix.size());
    const auto level = parseNumber<std::size_t>(name);
    return level && *level < levels.size() ? std::optional(numberRecord(levels[*level])) : std::nullopt;
}

std::optional<Bytes> LinuxKernelValues::feature(std::string_view name) const
{
    const auto feature = std::ranges::find(features, name, &Feature::name);
    const CpuInfo &info = m_processor.info();
    if (feature == features.end() || feature->family != info.family || info.features.empty())
        return std::nullopt;
    return numberRecord(std::int32_t{hasWord(info.features, feature->word)});
}

std::optional<Bytes> LinuxKernelValues::swap() const
{
    const auto text = m_files.text("/proc/meminfo");
    return text ? swapUsage(parseMemInfo(*text)) : std::nullopt;
}

std::optional<Bytes> LinuxKernelValues::pressure() const
{
    const auto text = m_files.value("/proc/pressure/memory");
    return text ? pressureLevel(*text) : std::nullopt;
}

} // namespace quillmark::platform
