// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::platform {

enum class ProcessorFamily { Other, X86, Arm, RiscV };

/// What /proc/cpuinfo says of its first processor. The labels differ by architecture, and so tell which one
/// it is.
struct CpuInfo
{
    ProcessorFamily family = ProcessorFamily::Other;
    bool is64Bit = false;
    std::optional<std::string> name; ///< of the product; none when the processor does not name itself
    std::string vendor;              ///< x86 only: "GenuineIntel", …
    std::string features;            ///< the kernel's words for them, separated by spaces
};

/// Whether the beginning of a /proc/cpuinfo holds all that parseCpuInfo() looks at.
bool holdsFirstProcessor(std::string_view text);

CpuInfo parseCpuInfo(std::string_view text);

/// A list of processors in the kernel's form, "0-3,8,10-11". None when it has another form; empty for an
/// empty text.
std::optional<std::vector<std::int32_t>> parseCpuList(std::string_view text);

/// Time that a processor has spent in each state, in ticks of USER_HZ.
struct ProcessorTimes
{
    std::int32_t number = 0;
    std::uint64_t user = 0; ///< with that of virtual machines
    std::uint64_t nice = 0;
    std::uint64_t system = 0; ///< with interrupts, and with what a hypervisor gave to others
    std::uint64_t idle = 0;   ///< with waiting for input and output
};

/// The processors' lines of /proc/stat, in its order; the line of their sum is not one.
std::vector<ProcessorTimes> parseStat(std::string_view text);

} // namespace quillmark::platform
