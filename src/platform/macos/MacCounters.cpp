// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacCounters.h"

#include "platform/macos/MacKernelValues.h"
#include "platform/macos/hostStatistics.h"
#include "platform/macos/interfaces.h"
#include "platform/macos/powerSources.h"
#include "platform/macos/processInformation.h"

#include <mach/vm_page_size.h>

namespace quillmark::platform {

namespace {

class MacCounterReader final : public CounterReader
{
public:
    CounterReading read() override
    {
        return {.processorTicks = processorTicks(m_host),
                .virtualMemory = virtualMemory(m_host),
                .swapUsage = m_kernelValues.read("vm.swapusage"),
                .pressureLevel = m_kernelValues.read("kern.memorystatus_vm_pressure_level"),
                .links = readInterfaces(InterfaceEntries::Links),
                .thermalState = processThermalState(),
                .powerSources = readPowerSources().value_or(std::vector<PropertyMap>())};
    }

private:
    HostPort m_host;
    MacKernelValues m_kernelValues;
};

} // namespace

std::int64_t MacCounters::pageSize() const
{
    return hostPageSize(HostPort()).value_or(static_cast<std::int64_t>(vm_kernel_page_size));
}

std::unique_ptr<CounterReader> MacCounters::reader() const
{
    return std::make_unique<MacCounterReader>();
}

} // namespace quillmark::platform
