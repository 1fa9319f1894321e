// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxCounters.h"

#include "platform/linux/LinkCounters.h"
#include "platform/linux/LinuxPower.h"
#include "platform/linux/LinuxThermal.h"
#include "platform/linux/MemoryFiles.h"
#include "platform/linux/ProcessorFiles.h"

#include <algorithm>
#include <utility>

#include <unistd.h>

namespace quillmark::platform {

namespace {

/// Hundredths of a second, cut to 32 bits, from ticks of which there are `perSecond`.
std::uint32_t hundredths(std::uint64_t ticks, std::uint64_t perSecond)
{
    return static_cast<std::uint32_t>(ticks / perSecond * 100 + ticks % perSecond * 100 / perSecond);
}

/// The memory that compressed block devices take, which swap is mostly on.
class ZramMemory
{
public:
    explicit ZramMemory(const Files &files)
        : m_files(files)
        , m_folder(files, blockFolder, "zram")
    {}

    std::uint64_t bytes()
    {
        if (m_folder.hasChanged()) {
            m_statistics.clear();
            for (const std::string &name : m_folder.names())
                m_statistics.emplace_back(m_files, blockFolder + name + "/mm_stat", HeldFile::figures);
        }
        std::uint64_t sum = 0;
        for (HeldFile &statistics : m_statistics)
            sum += parseZramMemory(statistics.read().value_or(std::string_view()));
        return sum;
    }

private:
    static constexpr const char *blockFolder = "/sys/block/";

    Files m_files;
    HeldFolder m_folder;
    std::vector<HeldFile> m_statistics;
};

class LinuxCounterReader final : public CounterReader
{
public:
    explicit LinuxCounterReader(const Files &files)
        : m_stat(files, "/proc/stat", HeldFile::figures)
        , m_memInfo(files, "/proc/meminfo", HeldFile::figures)
        , m_pressure(files, "/proc/pressure/memory", HeldFile::figures)
        , m_zram(files)
        , m_links(files)
        , m_thermalZones(files)
        , m_supplies(files)
    {}

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
        reading.links = m_links.read();
        reading.thermalState = m_thermalZones.state();
        reading.powerSources = m_supplies.powerSources();
        return reading;
    }

private:
    std::optional<std::vector<ProcessorTicks>> processorTicks()
    {
        const auto text = m_stat.read();
        std::vector<ProcessorTimes> processors = text ? parseStat(*text) : std::vector<ProcessorTimes>();
        if (processors.empty())
            return std::nullopt;
        keepIdleFromSteppingBack(processors);
        const auto perSecond = static_cast<std::uint64_t>(std::max(::sysconf(_SC_CLK_TCK), 1L));
        std::vector<ProcessorTicks> ticks;
        ticks.reserve(processors.size());
        for (const ProcessorTimes &times : processors) {
            ticks.push_back({hundredths(times.user, perSecond), hundredths(times.system, perSecond),
                             hundredths(times.idle, perSecond), hundredths(times.nice, perSecond)});
        }
        m_processors = std::move(processors);
        return ticks;
    }

    /// The kernel takes back some of a sleeping processor's idle time now and then. To one who counts modulo
    /// 2³² a step back would be more than a year of idling. A processor that was switched off, as all but one
    /// are while the machine sleeps, may begin anew: that is a long step, and is let through.
    void keepIdleFromSteppingBack(std::vector<ProcessorTimes> &processors) const
    {
        constexpr std::uint64_t longStep = 1000;
        for (std::size_t i = 0; i < std::min(processors.size(), m_processors.size()); ++i) {
            const ProcessorTimes &before = m_processors[i];
            ProcessorTimes &now = processors[i];
            if (now.number == before.number && now.idle < before.idle && before.idle - now.idle < longStep)
                now.idle = before.idle;
        }
    }

    std::optional<VirtualMemory> virtualMemory(const MemoryInfo &memory)
    {
        if (!memory.active)
            return std::nullopt;
        const std::uint64_t compressed = memory.compressed + m_zram.bytes();
        const auto pageBytes = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
        return VirtualMemory{*memory.active / pageBytes, memory.wired / pageBytes, compressed / pageBytes};
    }

    HeldFile m_stat;
    HeldFile m_memInfo;
    HeldFile m_pressure;
    ZramMemory m_zram;
    LinkCounters m_links;
    ThermalZones m_thermalZones;
    PowerSupplies m_supplies;
    std::vector<ProcessorTimes> m_processors; ///< as they were last read
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
