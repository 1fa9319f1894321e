// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/SystemSampler.h"

#include "monitor/verdicts.h"
#include "platform/PropertyValue.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <tuple>

namespace quillmark::monitor {

namespace {

using platform::CounterReading;

/// Readings closer together than this give no rate: a tick of the clock would weigh too much in it.
constexpr double shortestRateInterval = 0.2;

/// Loopback, tunnels, links between Apple devices, and what only passes on the bytes of an interface that is
/// counted already.
constexpr auto uncountedPrefixes = std::to_array<std::string_view>(
    {"lo", "utun", "ipsec", "gif", "stf", "awdl", "llw", "bridge", "anpi", "ap", // a Mac's
     "tun", "tap", "wg", "tailscale", "docker", "veth", "br-", "virbr"});        // Linux's

Date dateOf(const CounterReading &reading, Date otherwise)
{
    return reading.date ? Date(*reading.date) : otherwise;
}

Date currentDate()
{
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

double share(std::uint64_t part, std::uint64_t whole)
{
    return whole == 0 ? 0 : std::min(static_cast<double>(part) / static_cast<double>(whole), 1.0);
}

/// The bytes in several counts of pages, each and all of which have to be fewer than there are addresses.
template <typename... Counts>
std::int64_t bytesIn(std::int64_t pageSize, Counts... counts)
{
    std::int64_t sum = 0;
    const auto add = [&](std::uint64_t pages) {
        std::int64_t bytes = 0;
        return !__builtin_mul_overflow(pages, pageSize, &bytes) && !__builtin_add_overflow(sum, bytes, &sum);
    };
    if (!(add(counts) && ...))
        qFatal("more pages of memory than there are addresses");
    return sum;
}

std::optional<std::int32_t> levelOf(const std::optional<platform::Bytes> &record)
{
    std::int32_t level = 0;
    if (!record || record->size() != sizeof level)
        return std::nullopt;
    std::memcpy(&level, record->data(), sizeof level);
    return level;
}

/// The third field of the kernel's record of swap usage.
std::int64_t swapUsed(const std::optional<platform::Bytes> &record)
{
    constexpr std::size_t usedOffset = 16;
    std::array<std::byte, 32> buffer{};
    if (!record || record->size() > buffer.size())
        return 0;
    std::ranges::copy(*record, buffer.begin());
    std::int64_t used = 0;
    std::memcpy(&used, buffer.data() + usedOffset, sizeof used);
    return used;
}

struct Battery
{
    double level = 0;
    bool isCharging = false;
};

std::optional<Battery> battery(const CounterReading &reading)
{
    const auto &sources = reading.powerSources;
    const auto source = std::ranges::find_if(sources, [](const platform::PropertyMap &one) {
        const auto *type = platform::find<std::string>(one, "Type");
        return type && *type == "InternalBattery";
    });
    if (source == sources.end())
        return std::nullopt;
    const auto current = platform::get<std::int64_t>(*source, "Current Capacity").value_or(0);
    const auto most = platform::get<std::int64_t>(*source, "Max Capacity").value_or(100);
    const double level = most < 1 ? 0 : static_cast<double>(current) / static_cast<double>(most);
    return Battery{std::clamp(level, 0.0, 1.0), platform::get<bool>(*source, "Is Charging").value_or(false)};
}

bool isCounted(const platform::InterfaceEntry &entry)
{
    return entry.family == platform::AddressFamily::Link && entry.receivedBytes && entry.sentBytes &&
           entry.up && !entry.loopback &&
           std::ranges::none_of(uncountedPrefixes,
                                [&](std::string_view prefix) { return entry.name.starts_with(prefix); });
}

} // namespace

SystemSampler::SystemSampler(const platform::Machine &machine)
    : m_reader(machine.counters().reader())
    , m_physicalMemory(machine.system().physicalMemory())
    , m_pageSize(machine.counters().pageSize())
{}

void SystemSampler::prime()
{
    const Date now = currentDate();
    const CounterReading reading = m_reader->read();
    m_previousCPU = cpuTicks(reading).value_or(std::vector<CoreTicks>());
    m_previousNetwork = networkCounters(reading);
    m_previousNetworkDate = dateOf(reading, now);
}

MonitorSample SystemSampler::sample()
{
    const Date now = currentDate();
    const CounterReading reading = m_reader->read();
    MonitorSample sample;
    sample.date = dateOf(reading, now);
    std::tie(sample.cpuUsage, sample.perCoreUsage) = cpuUsage(reading);
    const MemoryStats memory = memoryStats(reading);
    sample.memoryUsed = memory.used;
    sample.memoryTotal = m_physicalMemory;
    sample.memoryPressure = memory.pressure;
    std::tie(sample.networkInPerSecond, sample.networkOutPerSecond) = networkRates(reading, sample.date);
    if (const auto internal = battery(reading)) {
        sample.batteryLevel = internal->level;
        sample.isCharging = internal->isCharging;
    }
    sample.swapUsed = swapUsed(reading.swapUsage);
    sample.thermalState = static_cast<ThermalState>(reading.thermalState);
    return sample;
}

std::optional<std::vector<CoreTicks>> SystemSampler::cpuTicks(const CounterReading &reading)
{
    if (!reading.processorTicks)
        return std::nullopt;
    std::vector<CoreTicks> ticks;
    ticks.reserve(reading.processorTicks->size());
    for (const auto &core : *reading.processorTicks)
        ticks.push_back({.user = core.user, .system = core.system, .idle = core.idle, .nice = core.nice});
    return ticks;
}

std::pair<double, std::vector<double>> SystemSampler::cpuUsage(const CounterReading &reading)
{
    auto current = cpuTicks(reading);
    if (!current)
        return {};
    std::vector<double> loads(current->size(), 0.0);
    if (m_previousCPU.size() != current->size()) {
        m_previousCPU = std::move(*current);
        return {0, std::move(loads)};
    }
    std::uint64_t busySum = 0;
    std::uint64_t totalSum = 0;
    for (std::size_t core = 0; core < loads.size(); ++core) {
        const CoreTicks &now = (*current)[core];
        const CoreTicks &before = m_previousCPU[core];
        // A counter that has wrapped spoils this one sample, and no more.
        const std::uint64_t busy =
            (now.user - before.user) + (now.system - before.system) + (now.nice - before.nice);
        const std::uint64_t total = busy + (now.idle - before.idle);
        loads[core] = share(busy, total);
        busySum += busy;
        totalSum += total;
    }
    m_previousCPU = std::move(*current);
    // By ticks and not the mean of the loads: a core that slept had fewer of them.
    return {share(busySum, totalSum), std::move(loads)};
}

SystemSampler::MemoryStats SystemSampler::memoryStats(const CounterReading &reading) const
{
    if (!reading.virtualMemory)
        return {};
    const auto &[active, wired, compressed] = *reading.virtualMemory;
    const std::int64_t used = bytesIn(m_pageSize, active, wired, compressed);
    // Active pages count as used, but to use memory is not to be short of it.
    const double pressure = m_physicalMemory < 1
                                ? 0
                                : std::clamp(static_cast<double>(bytesIn(m_pageSize, wired, compressed)) /
                                                 static_cast<double>(m_physicalMemory),
                                             0.0, 1.0);
    const PressureBand band = bandOf(levelOf(reading.pressureLevel));
    return {used, band.from + pressure * (band.to - band.from)};
}

SystemSampler::NetworkCounters SystemSampler::networkCounters(const CounterReading &reading)
{
    NetworkCounters counters;
    for (const auto &entry : reading.links) {
        if (isCounted(entry))
            counters[entry.name] = {*entry.receivedBytes, *entry.sentBytes};
    }
    return counters;
}

std::pair<double, double> SystemSampler::networkRates(const CounterReading &reading, Date now)
{
    auto current = networkCounters(reading);
    std::pair<double, double> rates;
    const double elapsed = m_previousNetworkDate ? secondsBetween(*m_previousNetworkDate, now) : 0;
    if (elapsed > shortestRateInterval) {
        std::uint64_t received = 0;
        std::uint64_t sent = 0;
        for (const auto &[name, counters] : current) {
            const auto before = m_previousNetwork.find(name);
            if (before == m_previousNetwork.end())
                continue;
            // In 32 bits, so that a counter that has wrapped still gives its small step.
            received += std::uint32_t{counters.inBytes - before->second.inBytes};
            sent += std::uint32_t{counters.outBytes - before->second.outBytes};
        }
        rates = {static_cast<double>(received) / elapsed, static_cast<double>(sent) / elapsed};
    }
    m_previousNetwork = std::move(current);
    m_previousNetworkDate = now;
    return rates;
}

} // namespace quillmark::monitor
