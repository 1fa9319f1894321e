// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "monitor/MonitorSample.h"
#include "platform/Machine.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillmark::monitor {

/// Time that one core has spent in each state since the machine started, in ticks.
struct CoreTicks
{
    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
    std::uint64_t nice = 0;

    bool operator==(const CoreTicks &) const = default;
};

/// Turns readings of a machine's counters into samples. Loads and rates come from two readings, so that it
/// keeps the last one.
///
/// What cannot be read becomes 0, or no battery; there is always a sample. Belongs to one thread at a time.
class SystemSampler
{
public:
    /// The machine need not outlive the sampler.
    explicit SystemSampler(const platform::Machine &machine);

    /// Takes a first reading, so that the sample after it already has loads and rates.
    void prime();

    MonitorSample sample();

private:
    struct LinkCounters
    {
        std::uint32_t inBytes = 0;
        std::uint32_t outBytes = 0;
    };
    using NetworkCounters = std::map<std::string, LinkCounters, std::less<>>;

    static std::optional<std::vector<CoreTicks>> cpuTicks(const platform::CounterReading &reading);
    static NetworkCounters networkCounters(const platform::CounterReading &reading);

    /// The whole machine's load and each core's.
    std::pair<double, std::vector<double>> cpuUsage(const platform::CounterReading &reading);

    struct MemoryStats
    {
        std::int64_t used = 0;
        double pressure = 0;
    };
    MemoryStats memoryStats(const platform::CounterReading &reading) const;

    /// Bytes a second in and out.
    std::pair<double, double> networkRates(const platform::CounterReading &reading, Date now);

    std::unique_ptr<platform::CounterReader> m_reader;
    std::int64_t m_physicalMemory;
    std::int64_t m_pageSize;
    std::vector<CoreTicks> m_previousCPU;
    NetworkCounters m_previousNetwork;
    std::optional<Date> m_previousNetworkDate;
};

} // namespace quillmark::monitor
