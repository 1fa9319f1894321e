// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxProcessor.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <string_view>

#include <sys/utsname.h>

namespace quillmark::platform {

namespace {

std::string processorPath(std::int32_t processor, std::string_view name)
{
    return "/sys/devices/system/cpu/cpu" + std::to_string(processor) + "/" + std::string(name);
}

void completeFromMachineWord(CpuInfo &info)
{
    const std::string machine = machineWord();
    if (machine == "x86_64" || machine == "i686" || machine == "i386")
        info.family = ProcessorFamily::X86;
    else if (machine.starts_with("aarch64") || machine.starts_with("arm"))
        info.family = ProcessorFamily::Arm;
    else if (machine.starts_with("riscv"))
        info.family = ProcessorFamily::RiscV;
    info.is64Bit = machine.find("64") != std::string::npos;
}

} // namespace

std::string machineWord()
{
    utsname names = {};
    return ::uname(&names) == 0 ? std::string(names.machine) : std::string();
}

LinuxProcessor::LinuxProcessor(const Files &files)
    : m_files(files)
{}

const CpuInfo &LinuxProcessor::info() const
{
    std::call_once(m_infoRead, [this] {
        const auto text = m_files.beginning("/proc/cpuinfo", holdsFirstProcessor);
        if (text)
            m_info = parseCpuInfo(*text);
        if (!text || text->empty())
            completeFromMachineWord(m_info);
    });
    return m_info;
}

std::optional<ProcessorLayout> LinuxProcessor::layout() const
{
    const auto online = m_files.value("/sys/devices/system/cpu/online");
    if (!online) {
        // A sandbox may hide /sys and still count the time of each processor.
        const auto stat = m_files.text("/proc/stat");
        const std::size_t count = stat ? parseStat(*stat).size() : 0;
        return count > 0 ? std::optional(ProcessorLayout{static_cast<std::int32_t>(count), {}})
                         : std::nullopt;
    }
    const std::lock_guard lock(m_layoutMutex);
    if (*online != m_layoutOnline) {
        const auto processors = parseCpuList(*online);
        if (!processors)
            return std::nullopt;
        m_layout = {static_cast<std::int32_t>(processors->size()), coresByLevel(*processors)};
        m_layoutOnline = *online;
    }
    return m_layout;
}

std::optional<std::int64_t> LinuxProcessor::maximumFrequency() const
{
    constexpr std::string_view folder = "/sys/devices/system/cpu/cpufreq/";
    std::int64_t highest = 0; // kHz
    for (const std::string &policy : m_files.names(folder, "policy"))
        highest =
            std::max(highest, m_files.number(std::string(folder) + policy + "/cpuinfo_max_freq").value_or(0));
    return highest > 0 ? std::optional(highest * 1000) : std::nullopt;
}

std::vector<std::int32_t> LinuxProcessor::coresByLevel(const std::vector<std::int32_t> &online) const
{
    const auto cores = firstProcessorOfCores(online);
    if (!cores || cores->empty())
        return {};
    std::vector<std::int32_t> levels = hybridLevels(*cores);
    // On x86 the capacities differ between cores of one kind: those that reach a higher clock are preferred.
    if (levels.empty() && info().family != ProcessorFamily::X86)
        levels = capacityLevels(*cores);
    if (levels.empty())
        levels.push_back(static_cast<std::int32_t>(cores->size()));
    return levels;
}

/// One processor of each core, or none when a processor's core is not told.
std::optional<std::vector<std::int32_t>>
LinuxProcessor::firstProcessorOfCores(const std::vector<std::int32_t> &online) const
{
    std::vector<std::int32_t> cores;
    std::set<std::int32_t> seen;
    for (const std::int32_t processor : online) {
        if (seen.contains(processor))
            continue;
        auto siblings = m_files.value(processorPath(processor, "topology/core_cpus_list"));
        if (!siblings)
            siblings = m_files.value(processorPath(processor, "topology/thread_siblings_list"));
        const auto sharing = siblings ? parseCpuList(*siblings) : std::nullopt;
        if (!sharing)
            return std::nullopt;
        seen.insert(sharing->begin(), sharing->end());
        cores.push_back(processor);
    }
    return cores;
}

/// The kinds of core of an Intel hybrid processor; empty on any other.
std::vector<std::int32_t> LinuxProcessor::hybridLevels(const std::vector<std::int32_t> &cores) const
{
    constexpr std::array<std::string_view, 3> kinds = {
        "/sys/devices/cpu_core/cpus", "/sys/devices/cpu_atom/cpus", "/sys/devices/cpu_lowpower/cpus"};
    std::vector<std::int32_t> levels;
    std::int32_t counted = 0;
    for (const std::string_view kind : kinds) {
        const auto list = m_files.value(kind);
        if (!list && kind == kinds.front())
            break;
        const auto processors = list ? parseCpuList(*list) : std::nullopt;
        if (!processors)
            continue;
        const auto count = static_cast<std::int32_t>(std::ranges::count_if(cores, [&](std::int32_t core) {
            return std::ranges::find(*processors, core) != processors->end();
        }));
        if (count > 0)
            levels.push_back(count);
        counted += count;
    }
    // Lists that leave cores out do not tell the levels.
    return counted == static_cast<std::int32_t>(cores.size()) ? levels : std::vector<std::int32_t>();
}

/// The kinds of core by their capacity; empty when it is not told for each.
std::vector<std::int32_t> LinuxProcessor::capacityLevels(const std::vector<std::int32_t> &cores) const
{
    std::map<std::int64_t, std::int32_t, std::greater<>> coresByCapacity;
    for (const std::int32_t core : cores) {
        const auto capacity = m_files.number(processorPath(core, "cpu_capacity"));
        if (!capacity)
            return {};
        ++coresByCapacity[*capacity];
    }
    std::vector<std::int32_t> levels;
    std::ranges::transform(coresByCapacity, std::back_inserter(levels),
                           [](const auto &entry) { return entry.second; });
    return levels;
}

} // namespace quillmark::platform
