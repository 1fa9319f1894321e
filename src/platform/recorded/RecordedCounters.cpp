// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace quillmark::platform::recorded {

namespace {

using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// "2026-03-01T09:00:00.250Z", the fraction being optional.
std::optional<Date> parseDate(std::string_view text)
{
    const auto field = [text](std::size_t at, std::size_t length) -> int {
        if (text.size() < at + length)
            return -1;
        int number = 0;
        for (const char c : text.substr(at, length)) {
            if (c < '0' || c > '9')
                return -1;
            number = 10 * number + (c - '0');
        }
        return number;
    };
    const bool hasFraction = text.size() == 24 && text[19] == '.';
    if ((text.size() != 20 && !hasFraction) || text[4] != '-' || text[7] != '-' || text[10] != 'T' ||
        text[13] != ':' || text[16] != ':' || text.back() != 'Z')
        return std::nullopt;
    const std::chrono::year_month_day day{std::chrono::year(field(0, 4)),
                                          std::chrono::month(static_cast<unsigned>(field(5, 2))),
                                          std::chrono::day(static_cast<unsigned>(field(8, 2)))};
    const int hour = field(11, 2);
    const int minute = field(14, 2);
    const int second = field(17, 2);
    const int milliseconds = hasFraction ? field(20, 3) : 0;
    if (field(0, 4) < 0 || !day.ok() || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 ||
        second > 59 || milliseconds < 0)
        return std::nullopt;
    return Date(std::chrono::sys_days(day)) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
           std::chrono::seconds(second) + std::chrono::milliseconds(milliseconds);
}

std::optional<std::vector<ProcessorTicks>> readTicks(const Members &entry)
{
    constexpr auto most = std::int64_t{std::numeric_limits<std::uint32_t>::max()};
    const PropertyList *cores = entry.elements("processorTicks");
    if (!cores)
        return std::nullopt;
    std::vector<ProcessorTicks> ticks;
    for (const auto &core : *cores) {
        const auto *states = std::get_if<PropertyList>(&core.value);
        const auto isTick = [](const PropertyValue &state) {
            const auto *number = std::get_if<std::int64_t>(&state.value);
            return number && *number >= 0 && *number <= most;
        };
        if (!states || states->size() != 4 || !std::ranges::all_of(*states, isTick)) {
            entry.fail("processorTicks", "must hold four whole numbers from 0 to 4294967295 for each core");
            return std::nullopt;
        }
        const auto state = [states](std::size_t place) {
            return static_cast<std::uint32_t>(std::get<std::int64_t>((*states)[place].value));
        };
        ticks.push_back({.user = state(0), .system = state(1), .idle = state(2), .nice = state(3)});
    }
    return ticks;
}

/// The page size, and how many pages a count may hold so that sums of their bytes fit 64 bits.
struct Pages
{
    std::int64_t size;
    std::int64_t most = (std::int64_t{1} << 60) / size;
};

std::optional<VirtualMemory> readVirtualMemory(const Members &entry, const Pages &pages)
{
    const auto counts = entry.members("virtualMemory");
    if (!counts)
        return std::nullopt;
    const auto count = [&](std::string_view name) {
        return static_cast<std::uint64_t>(counts->integer(name, 0, pages.most).value_or(0));
    };
    return VirtualMemory{.activeCount = count("active_count"),
                         .wireCount = count("wire_count"),
                         .compressorPageCount = count("compressor_page_count")};
}

std::vector<InterfaceEntry> readLinks(const Members &entry)
{
    auto entries = readInterfaces(entry);
    std::erase_if(entries, [](const InterfaceEntry &one) { return one.family != AddressFamily::Link; });
    return entries;
}

std::optional<Date> readDate(const Members &sample)
{
    const auto text = sample.text("date");
    const auto date = text ? parseDate(*text) : std::nullopt;
    if (text && !date)
        sample.fail("date", R"(must be a date of the form "2026-03-01T09:00:00.000Z")");
    return date;
}

/// One entry of "samples". What it does not mention is as in `base`; what it says to be null has failed.
CounterReading readSample(const Members &entry, const CounterReading &base, const Pages &pages)
{
    CounterReading reading = base;
    if (entry.has("processorTicks"))
        reading.processorTicks = readTicks(entry);
    if (entry.has("virtualMemory"))
        reading.virtualMemory = readVirtualMemory(entry, pages);
    if (entry.has("interfaces"))
        reading.links = readLinks(entry);
    if (entry.has("thermalState"))
        reading.thermalState = entry.integer<std::int32_t>("thermalState").value_or(0);
    if (entry.has("powerSources"))
        reading.powerSources = entry.dictionaries("powerSources").value_or(std::vector<PropertyMap>());

    const auto kernelValues = entry.members("sysctl");
    const auto replace = [&](std::optional<Bytes> &value, std::string_view name) {
        if (entry.has("sysctl") && (!kernelValues || kernelValues->has(name)))
            value = kernelValues ? readKernelValue(*kernelValues, name) : std::nullopt;
    };
    replace(reading.swapUsage, "vm.swapusage");
    replace(reading.pressureLevel, "kern.memorystatus_vm_pressure_level");
    return reading;
}

class Replay final : public CounterReader
{
public:
    explicit Replay(std::vector<CounterReading> readings)
        : m_readings(std::move(readings))
    {}

    CounterReading read() override
    {
        const auto &reading = m_readings[m_next];
        m_next = std::min(m_next + 1, m_readings.size() - 1);
        return reading;
    }

private:
    std::vector<CounterReading> m_readings; ///< never empty
    std::size_t m_next = 0;
};

class RecordedCounters final : public Counters
{
public:
    RecordedCounters(std::int64_t pageSize, std::vector<CounterReading> readings)
        : m_pageSize(pageSize)
        , m_readings(std::move(readings))
    {}

    std::int64_t pageSize() const override { return m_pageSize; }
    std::unique_ptr<CounterReader> reader() const override { return std::make_unique<Replay>(m_readings); }

private:
    std::int64_t m_pageSize;
    std::vector<CounterReading> m_readings;
};

} // namespace

std::unique_ptr<Counters> readCounters(const Members &recording)
{
    constexpr std::int64_t usualPageSize = 4096;
    constexpr auto mostBytes = std::int64_t{1} << 30;
    const Pages pages = {recording.integer("pageSize", 1, mostBytes).value_or(usualPageSize)};
    const auto base = readSample(recording, {}, pages);
    std::vector<CounterReading> readings;
    if (const auto samples = recording.list("samples")) {
        for (const auto &sample : *samples) {
            readings.push_back(readSample(sample, base, pages));
            readings.back().date = readDate(sample);
        }
    }
    if (readings.empty())
        readings.push_back(base);
    return std::make_unique<RecordedCounters>(pages.size, std::move(readings));
}

/// One reading, as members of the recording itself; the links, kernel values, heat and power are there
/// already.
void write(json::Writer &writer, const Counters &counters)
{
    const auto reading = counters.reader()->read();
    writer.member("pageSize", counters.pageSize());
    if (reading.processorTicks) {
        writer.key("processorTicks");
        writer.beginArray();
        for (const auto &core : *reading.processorTicks) {
            writer.beginArray();
            for (const std::uint32_t ticks : {core.user, core.system, core.idle, core.nice})
                writer.integer(std::uint64_t{ticks});
            writer.endArray();
        }
        writer.endArray();
    }
    if (reading.virtualMemory) {
        const auto count = [&writer](std::string_view name, std::uint64_t pages) {
            writer.key(name);
            writer.integer(pages);
        };
        writer.key("virtualMemory");
        writer.beginObject();
        count("active_count", reading.virtualMemory->activeCount);
        count("wire_count", reading.virtualMemory->wireCount);
        count("compressor_page_count", reading.virtualMemory->compressorPageCount);
        writer.endObject();
    }
}

} // namespace quillmark::platform::recorded
