// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Network.h"
#include "platform/PropertyValue.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quillmark::platform {

/// Time that one core has spent in each state, in ticks of 1/100 s since the machine started; wraps at 2³².
struct ProcessorTicks
{
    std::uint32_t user = 0;
    std::uint32_t system = 0;
    std::uint32_t idle = 0;
    std::uint32_t nice = 0;

    bool operator==(const ProcessorTicks &) const = default;
};

/// Page counts of the virtual memory (host_statistics64), in pages of Counters::pageSize().
struct VirtualMemory
{
    std::uint64_t activeCount = 0;
    std::uint64_t wireCount = 0;
    std::uint64_t compressorPageCount = 0;

    bool operator==(const VirtualMemory &) const = default;
};

/// All live counters at one moment. Each is absent when its own reading failed.
struct CounterReading
{
    std::optional<std::chrono::sys_time<std::chrono::milliseconds>>
        date;                                                  ///< only in a replay: when it was recorded
    std::optional<std::vector<ProcessorTicks>> processorTicks; ///< by core, in the kernel's order
    std::optional<VirtualMemory> virtualMemory;
    /// Kernel value "vm.swapusage": total, available, used (unsigned 64-bit each), page size, flags (32-bit
    /// each).
    std::optional<Bytes> swapUsage;
    /// Kernel value "kern.memorystatus_vm_pressure_level", 4 bytes: 1 normal, 2 warning, 4 critical.
    std::optional<Bytes> pressureLevel;
    std::vector<InterfaceEntry> links;     ///< family Link alone
    std::int32_t thermalState = 0;         ///< as SystemInformation::thermalState()
    std::vector<PropertyMap> powerSources; ///< as Power::powerSources()

    bool operator==(const CounterReading &) const = default;
};

/// Reads the counters again and again at little cost. Belongs to one thread at a time.
class CounterReader
{
public:
    virtual ~CounterReader() = default;

    virtual CounterReading read() = 0;
};

class Counters
{
public:
    virtual ~Counters() = default;

    /// Bytes in a page of the kernel's own counting.
    virtual std::int64_t pageSize() const = 0;

    virtual std::unique_ptr<CounterReader> reader() const = 0;
};

} // namespace quillmark::platform
