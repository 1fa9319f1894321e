// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxSystemInformation.h"

#include "platform/linux/LinuxThermal.h"
#include "platform/linux/MemoryFiles.h"
#include "platform/linux/OsRelease.h"
#include "platform/linux/TextFields.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace quillmark::platform {

namespace {

/// The maker of an x86 processor by the word that the processor gives; empty for others.
std::string_view makerOf(std::string_view vendor)
{
    if (vendor == "GenuineIntel")
        return "Intel";
    if (vendor == "AuthenticAMD")
        return "AMD";
    if (vendor == "HygonGenuine")
        return "Hygon";
    return vendor == "Shanghai" ? "Zhaoxin" : "";
}

/// Installed memory by the blocks that the kernel manages it in; 0 where it has none.
///
/// A block that is switched off is installed all the same, so that their number is the answer and not one of
/// their files has to be opened.
std::int64_t memoryInBlocks(const Files &files)
{
    constexpr std::string_view folder = "/sys/devices/system/memory";
    constexpr std::string_view prefix = "memory";
    const std::int64_t size = files.number(std::string(folder) + "/block_size_bytes", 16).value_or(0);
    if (size <= 0)
        return 0;
    const auto blocks = files.names(folder, prefix);
    const auto count = std::ranges::count_if(blocks, [prefix](const std::string &name) {
        return parseNumber<std::uint32_t>(std::string_view(name).substr(prefix.size())).has_value();
    });
    return count <= std::numeric_limits<std::int64_t>::max() / size ? count * size : 0;
}

/// The blocks, unless the kernel tells of more memory than they hold.
std::int64_t installedMemory(const Files &files)
{
    const auto text = files.text("/proc/meminfo");
    const std::uint64_t total = text ? parseMemInfo(*text).total.value_or(0) : 0;
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return std::max(memoryInBlocks(files), static_cast<std::int64_t>(std::min(total, most)));
}

} // namespace

LinuxSystemInformation::LinuxSystemInformation(const Files &files, const LinuxProcessor &processor)
    : m_files(files)
    , m_processor(processor)
{}

OperatingSystem LinuxSystemInformation::operatingSystem() const
{
    return facts().operatingSystem;
}

SystemWords LinuxSystemInformation::words() const
{
    return facts().words;
}

std::optional<InstructionSet> LinuxSystemInformation::instructionSet() const
{
    const CpuInfo &info = m_processor.info();
    if (info.is64Bit && info.family == ProcessorFamily::X86)
        return InstructionSet::X86_64;
    return info.is64Bit && info.family == ProcessorFamily::Arm ? InstructionSet::Arm64
                                                               : InstructionSet::Other;
}

std::optional<std::string> LinuxSystemInformation::hostName() const
{
    if (const auto machineInfo = m_files.text("/etc/machine-info")) {
        std::string pretty = assigned(parseOsRelease(*machineInfo), "PRETTY_HOSTNAME");
        if (!pretty.empty())
            return pretty;
    }
    auto name = m_files.value("/proc/sys/kernel/hostname");
    // The kernel's word until somebody sets the name.
    return name == "(none)" ? std::nullopt : name;
}

std::int64_t LinuxSystemInformation::physicalMemory() const
{
    return facts().physicalMemory;
}

std::optional<double> LinuxSystemInformation::uptime() const
{
    // Unlike CLOCK_BOOTTIME this clock stands still while the machine sleeps.
    timespec time = {};
    if (::clock_gettime(CLOCK_MONOTONIC, &time) != 0)
        return std::nullopt;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

std::int32_t LinuxSystemInformation::thermalState() const
{
    return ThermalZones(m_files).state();
}

const LinuxSystemInformation::Facts &LinuxSystemInformation::facts() const
{
    std::call_once(m_factsRead, [this] {
        const auto assignments = osRelease();
        const std::string name = assigned(assignments, "PRETTY_NAME", assigned(assignments, "NAME"));
        const auto release = m_files.value("/proc/sys/kernel/osrelease");
        const std::string kernel = release ? "Linux " + *release : "Linux";
        m_facts.operatingSystem = operatingSystemOf(assignments);
        m_facts.words = {name.empty() ? kernel : name + ", " + kernel, processorWord(), architectureWord()};
        m_facts.physicalMemory = installedMemory(m_files);
    });
    return m_facts;
}

std::map<std::string, std::string, std::less<>> LinuxSystemInformation::osRelease() const
{
    auto text = m_files.text("/etc/os-release");
    if (!text)
        text = m_files.text("/usr/lib/os-release");
    return text ? parseOsRelease(*text) : std::map<std::string, std::string, std::less<>>();
}

std::string LinuxSystemInformation::architectureWord() const
{
    const CpuInfo &info = m_processor.info();
    if (info.is64Bit) {
        const std::string_view maker = makerOf(info.vendor);
        switch (info.family) {
        case ProcessorFamily::X86:
            return maker.empty() ? "x86_64" : std::string(maker) + " (x86_64)";
        case ProcessorFamily::Arm:
            return "Arm (aarch64)";
        case ProcessorFamily::RiscV:
            return "RISC-V (riscv64)";
        case ProcessorFamily::Other:
            break;
        }
    }
    return machineWord();
}

std::string LinuxSystemInformation::processorWord() const
{
    switch (m_processor.info().family) {
    case ProcessorFamily::X86:
        return "x86 processor";
    case ProcessorFamily::Arm:
        return "Arm processor";
    case ProcessorFamily::RiscV:
        return "RISC-V processor";
    case ProcessorFamily::Other:
        break;
    }
    return machineWord() + " processor";
}

} // namespace quillmark::platform
