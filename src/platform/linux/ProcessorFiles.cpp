// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/ProcessorFiles.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillmark::platform {

namespace {

/// More than the kernel can be built for (NR_CPUS); a longer range is a broken file.
constexpr std::int32_t processorLimit = 65536;

/// The end of the first processor's paragraph; npos while it is not there. Some architectures describe the
/// whole machine in a paragraph before it.
std::size_t firstProcessorEnd(std::string_view text)
{
    const std::size_t start = text.starts_with("processor") ? 0 : text.find("\nprocessor");
    return start == std::string_view::npos ? start : text.find("\n\n", start);
}

/// The labels of a processor's name: x86 and 32-bit Arm, LoongArch, MIPS, earlier Arm, POWER and SPARC.
constexpr std::array<std::string_view, 5> nameLabels = {"model name", "Model Name", "cpu model", "Processor",
                                                        "cpu"};

void readLine(const LabelledValue &line, CpuInfo &info, std::size_t &nameRank)
{
    if (line.label == "vendor_id") {
        info.vendor = line.value;
    } else if (line.label == "flags") {
        info.family = ProcessorFamily::X86;
        info.is64Bit = hasWord(line.value, "lm");
        info.features = line.value;
    } else if (line.label == "Features") {
        info.features = line.value;
    } else if (line.label == "CPU architecture") {
        // A number, and "AArch64" in the first 64-bit kernels.
        info.family = ProcessorFamily::Arm;
        info.is64Bit = line.value == "AArch64" || parseNumber<int>(line.value).value_or(0) >= 8;
    } else if (line.label == "isa" && line.value.starts_with("rv")) {
        info.family = ProcessorFamily::RiscV;
        info.is64Bit = line.value.starts_with("rv64");
    }
    const auto label = std::ranges::find(nameLabels, line.label);
    const auto rank = static_cast<std::size_t>(label - nameLabels.begin());
    if (rank < nameRank && !line.value.empty() && line.value != "unknown") {
        info.name = line.value;
        nameRank = rank;
    }
}

} // namespace

bool holdsFirstProcessor(std::string_view text)
{
    return firstProcessorEnd(text) != std::string_view::npos;
}

CpuInfo parseCpuInfo(std::string_view text)
{
    CpuInfo info;
    std::size_t nameRank = nameLabels.size();
    text = text.substr(0, firstProcessorEnd(text));
    while (!text.empty())
        readLine(splitLabel(takeUntil(text, '\n'), ':'), info, nameRank);
    return info;
}

std::optional<std::vector<std::int32_t>> parseCpuList(std::string_view text)
{
    std::vector<std::int32_t> processors;
    std::string_view rest = trimmed(text);
    while (!rest.empty()) {
        std::string_view range = takeUntil(rest, ',');
        const bool isRange = range.find('-') != std::string_view::npos;
        const auto first = parseNumber<std::int32_t>(takeUntil(range, '-'));
        const auto last = isRange ? parseNumber<std::int32_t>(range) : first;
        if (!first || !last || *first < 0 || *first > *last || *last >= processorLimit)
            return std::nullopt;
        for (std::int32_t processor = *first; processor <= *last; ++processor)
            processors.push_back(processor);
    }
    return processors;
}

std::vector<ProcessorTimes> parseStat(std::string_view text)
{
    std::vector<ProcessorTimes> processors;
    while (text.starts_with("cpu")) {
        std::string_view line = takeUntil(text, '\n');
        const auto number = parseNumber<std::int32_t>(takeWord(line).substr(3));
        std::array<std::uint64_t, 8> ticks = {};
        std::size_t count = 0;
        for (; count < ticks.size(); ++count) {
            const auto field = parseNumber<std::uint64_t>(takeWord(line));
            if (!field)
                break;
            ticks[count] = *field;
        }
        // Kernels before 2.6 knew only the first four.
        if (!number || count < 4)
            continue;
        const auto [user, nice, system, idle, inputOutput, interrupts, softInterrupts, stolen] = ticks;
        processors.push_back(
            {*number, user, nice, system + interrupts + softInterrupts + stolen, idle + inputOutput});
    }
    return processors;
}

} // namespace quillmark::platform
