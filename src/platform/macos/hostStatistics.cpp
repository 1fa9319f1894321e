// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/hostStatistics.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <utility>

#include <mach/mach.h>

namespace quillmark::platform {

namespace {

/// An array that the kernel laid into this process.
class KernelArray
{
public:
    KernelArray() = default;
    KernelArray(const KernelArray &) = delete;
    KernelArray &operator=(const KernelArray &) = delete;
    ~KernelArray()
    {
        if (words)
            ::vm_deallocate(mach_task_self(), reinterpret_cast<vm_address_t>(words), count * sizeof *words);
    }

    integer_t *words = nullptr;
    mach_msg_type_number_t count = 0;
};

} // namespace

HostPort::HostPort()
    : m_name(::mach_host_self())
{}

HostPort::~HostPort()
{
    ::mach_port_deallocate(mach_task_self(), m_name);
}

std::optional<std::vector<ProcessorTicks>> processorTicks(const HostPort &host)
{
    KernelArray array;
    natural_t cores = 0;
    if (::host_processor_info(host.name(), PROCESSOR_CPU_LOAD_INFO, &cores, &array.words, &array.count) !=
            KERN_SUCCESS ||
        !array.words || array.count / CPU_STATE_MAX < cores)
        return std::nullopt;
    std::vector<ProcessorTicks> ticks;
    ticks.reserve(cores);
    for (natural_t core = 0; core < cores; ++core) {
        const auto state = [states = array.words + std::size_t{core} * CPU_STATE_MAX](int number) {
            return static_cast<std::uint32_t>(states[number]);
        };
        ticks.push_back({.user = state(CPU_STATE_USER),
                         .system = state(CPU_STATE_SYSTEM),
                         .idle = state(CPU_STATE_IDLE),
                         .nice = state(CPU_STATE_NICE)});
    }
    return ticks;
}

std::optional<VirtualMemory> virtualMemory(const HostPort &host)
{
    // The record grows from system to system: the kernel fills what it knows of a buffer with room to spare.
    std::array<integer_t, 62> words = {};
    mach_msg_type_number_t count = words.size();
    if (::host_statistics64(host.name(), HOST_VM_INFO64, words.data(), &count) != KERN_SUCCESS)
        return std::nullopt;
    vm_statistics64_data_t statistics = {};
    static_assert(sizeof statistics <= sizeof words);
    constexpr std::size_t needed =
        offsetof(vm_statistics64_data_t, compressor_page_count) + sizeof statistics.compressor_page_count;
    if (count * sizeof(integer_t) < needed)
        return std::nullopt;
    std::memcpy(&statistics, words.data(), sizeof statistics);
    return VirtualMemory{.activeCount = statistics.active_count,
                         .wireCount = statistics.wire_count,
                         .compressorPageCount = statistics.compressor_page_count};
}

std::optional<std::int64_t> hostPageSize(const HostPort &host)
{
    vm_size_t size = 0;
    if (::host_page_size(host.name(), &size) != KERN_SUCCESS || size == 0)
        return std::nullopt;
    return static_cast<std::int64_t>(size);
}

} // namespace quillmark::platform
