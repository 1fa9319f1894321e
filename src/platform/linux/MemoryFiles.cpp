// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/MemoryFiles.h"

#include "platform/KernelRecord.h"
#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>

#include <unistd.h>

namespace quillmark::platform {

namespace {

/// A share of the last ten seconds that is more than a passing stall, in percent: one second.
constexpr int notableShare = 10;

/// Half an exbibyte: more than any machine has, and little enough to be added up.
constexpr std::uint64_t mostKilobytes = std::uint64_t{1} << 49;

constexpr std::int32_t levelNormal = 1;
constexpr std::int32_t levelWarning = 2;
constexpr std::int32_t levelCritical = 4;

/// The lines that are wanted; from firstWired on they are added up.
constexpr std::array<std::string_view, 11> wantedLabels = {
    "MemTotal",    "SwapTotal",  "SwapFree",    "Active(anon)", "Inactive(anon)", "Zswap",
    "Unevictable", "SUnreclaim", "KernelStack", "PageTables",   "Percpu"};
constexpr std::ptrdiff_t firstWired = 6;

bool isWired(std::string_view label)
{
    return std::find(wantedLabels.begin() + firstWired, wantedLabels.end(), label) != wantedLabels.end();
}

} // namespace

MemoryInfo parseMemInfo(std::string_view text)
{
    MemoryInfo memory;
    while (!text.empty()) {
        std::string_view rest = takeUntil(text, '\n');
        const std::string_view label = takeUntil(rest, ':');
        if (std::ranges::find(wantedLabels, label) == wantedLabels.end())
            continue;
        const auto kilobytes = parseNumber<std::uint64_t>(takeWord(rest));
        if (!kilobytes || *kilobytes > mostKilobytes || trimmed(rest) != "kB")
            continue;
        const std::uint64_t bytes = *kilobytes * 1024;
        if (label == "MemTotal")
            memory.total = bytes;
        else if (label == "SwapTotal")
            memory.swapTotal = bytes;
        else if (label == "SwapFree")
            memory.swapFree = bytes;
        else if (label == "Active(anon)" || label == "Inactive(anon)")
            memory.active = memory.active.value_or(0) + bytes;
        else if (label == "Zswap")
            memory.compressed = bytes;
        else if (isWired(label))
            memory.wired += bytes;
    }
    return memory;
}

std::optional<Bytes> swapUsage(const MemoryInfo &memory)
{
    if (!memory.swapTotal || !memory.swapFree)
        return std::nullopt;
    const std::uint64_t available = std::min(*memory.swapFree, *memory.swapTotal);
    Bytes record;
    appendNumber(record, *memory.swapTotal);
    appendNumber(record, available);
    appendNumber(record, *memory.swapTotal - available);
    appendNumber(record, static_cast<std::uint32_t>(::sysconf(_SC_PAGESIZE)));
    appendNumber(record, std::uint32_t{0});
    return record;
}

/// "some" is the time in which at least one task waited for memory, "full" the time in which every task that
/// had something to do waited, so that the processor worked for nobody: the kernel calls that thrashing. One
/// second of the last ten spent so is critical; one second of some task's waiting is a warning.
std::optional<Bytes> pressureLevel(std::string_view text)
{
    std::optional<int> some;
    std::optional<int> full;
    while (!text.empty()) {
        std::string_view line = takeUntil(text, '\n');
        const std::string_view kind = takeWord(line);
        const LabelledValue average = splitLabel(takeWord(line), '=');
        if (average.label != "avg10")
            continue;
        const auto percent = parseNumber<int>(average.value.substr(0, average.value.find('.')));
        if (kind == "some")
            some = percent;
        else if (kind == "full")
            full = percent;
    }
    if (!some)
        return std::nullopt;
    if (full && *full >= notableShare)
        return numberRecord(levelCritical);
    return numberRecord(*some >= notableShare ? levelWarning : levelNormal);
}

std::uint64_t parseZramMemory(std::string_view text)
{
    // Sizes before and after compression, then what all of it takes with the allocator's own share.
    takeWord(text);
    takeWord(text);
    const auto bytes = parseNumber<std::uint64_t>(trimmed(takeWord(text))).value_or(0);
    return bytes / 1024 > mostKilobytes ? 0 : bytes;
}

} // namespace quillmark::platform
