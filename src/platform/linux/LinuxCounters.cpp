// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxCounters.h"

#include "platform/linux/LinuxNetwork.h"
#include "platform/linux/LinuxPower.h"
#include "platform/linux/LinuxThermal.h"
#include "platform/linux/MemoryFiles.h"
#include "platform/linux/ProcessorFiles.h"

#include <algorithm>
#include <map>
#include <utility>

#include <unistd.h>

namespace quillmark::platform {

namespace {

/// Hundredths of a second, cut to 32 bits, from ticks of which there are `perSecond`.
std::uint32_t hundredths(std::uint64_t ticks, std::uint64_t perSecond)
{
    return static_cast<std::uint32_t>(ticks / perSecond * 100 + ticks % perSecond * 100 / perSecond);
}

class LinuxCounterReader final : public CounterReader
{
public:
    explicit LinuxCounterReader(const Files &files)
        : m_stat(files, "/proc/stat")
        , m_memInfo(files, "/proc/meminfo")
        , m_pressure(files, "/proc/pressure/memory")
        , m_thermalZones(files)
        , m_power(files)
    {
        const std::string folder = "/sys/block/";
        for (const std::string &name : files.names(folder, "zram"))
            m_zram.emplace_back(files, folder + name + "/mm_stat");
    }

    CounterReading read() override
    {
        CounterReading reading;
        reading.processorTicks = processorTicks();
        if (const auto text = m_memInfo.read()) {
            const MemoryInfo memory = parseMemInfo(*text);
            reading.virtualMemory = virtualMemory(memory);
            reading.swapUsage = swapUsage(memory);
        }
        if (const auto text = m_pressure.read())
            reading.pressureLevel = pressureLevel(*text);
        reading.links = readInterfaces(InterfaceEntries::Links);
        reading.thermalState = m_thermalZones.state();
        reading.powerSources = m_power.powerSources().value_or(std::vector<PropertyMap>());
        return reading;
    }

private:
    std::optional<std::vector<ProcessorTicks>> processorTicks()
    {
        const auto text = m_stat.read();
        const std::vector<ProcessorTimes> processors =
            text ? parseStat(*text) : std::vector<ProcessorTimes>();
        if (processors.empty())
            return std::nullopt;
        const auto perSecond = static_cast<std::uint64_t>(std::max(::sysconf(_SC_CLK_TCK), 1L));
        std::vector<ProcessorTicks> ticks;
        ticks.reserve(processors.size());
        for (const ProcessorTimes &times : processors) {
            // The kernel takes back some of a sleeping processor's idle time now and then. To one who counts
            // modulo 2³² a step back would be more than a year of idling.
            std::uint64_t &idle = m_idle[times.number];
            idle = std::max(idle, times.idle);
            ticks.push_back({hundredths(times.user, perSecond), hundredths(times.system, perSecond),
                             hundredths(idle, perSecond), hundredths(times.nice, perSecond)});
        }
        return ticks;
    }

    std::optional<VirtualMemory> virtualMemory(const MemoryInfo &memory)
    {
        if (!memory.active)
            return std::nullopt;
        std::uint64_t compressed = memory.compressed;
        for (HeldFile &statistics : m_zram)
            compressed += parseZramMemory(statistics.read().value_or(std::string_view()));
        const auto pageBytes = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
        return VirtualMemory{*memory.active / pageBytes, memory.wired / pageBytes, compressed / pageBytes};
    }

    HeldFile m_stat;
    HeldFile m_memInfo;
    HeldFile m_pressure;
    std::vector<HeldFile> m_zram;
    ThermalZones m_thermalZones;
    LinuxPower m_power;
    std::map<std::int32_t, std::uint64_t> m_idle; ///< by processor: the most that was read
};

} // namespace

LinuxCounters::LinuxCounters(const Files &files)
    : m_files(files)
{}

std::int64_t LinuxCounters::pageSize() const
{
    return ::sysconf(_SC_PAGESIZE);
}

std::unique_ptr<CounterReader> LinuxCounters::reader() const
{
    return std::make_unique<LinuxCounterReader>(m_files);
}

} // namespace quillmark::platform
