// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Counters.h"

#include <cstdint>
#include <optional>
#include <vector>

#include <mach/mach_types.h>

namespace quillmark::platform {

/// The right to ask the kernel about the host, which each call of mach_host_self() adds a reference to.
class HostPort
{
public:
    HostPort();
    HostPort(const HostPort &) = delete;
    HostPort &operator=(const HostPort &) = delete;
    ~HostPort();

    host_t name() const { return m_name; }

private:
    host_t m_name;
};

/// host_processor_info(PROCESSOR_CPU_LOAD_INFO): one entry a core, also for cores that are switched off.
std::optional<std::vector<ProcessorTicks>> processorTicks(const HostPort &host);

/// host_statistics64(HOST_VM_INFO64). Asked more than a few times a second, the kernel repeats itself.
std::optional<VirtualMemory> virtualMemory(const HostPort &host);

/// Bytes in a page of the kernel, which to a translated process differs from its own.
std::optional<std::int64_t> hostPageSize(const HostPort &host);

} // namespace quillmark::platform
