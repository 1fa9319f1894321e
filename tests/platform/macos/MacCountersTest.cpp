// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacCounters.h"

#include "check.h"
#include "kernel.h"
#include "platform/macos/powerSources.h"
#include "platform/macos/processInformation.h"

#include <net/if_var.h>
#include <sys/socket.h>

namespace quillmark::platform {

std::int32_t processThermalState()
{
    return 2;
}

std::optional<std::vector<PropertyMap>> readPowerSources()
{
    return std::nullopt;
}

} // namespace quillmark::platform

using namespace quillmark::platform;

namespace {

void ticks(CounterReader &reader)
{
    standin::ticks = {1, 2, 3, 4, 0xffffffff, 20, 30, 40};
    const auto read = reader.read().processorTicks;
    CHECK(read == std::vector<ProcessorTicks>{{.user = 1, .system = 2, .idle = 3, .nice = 4},
                                              {.user = 0xffffffff, .system = 20, .idle = 30, .nice = 40}});
    standin::ticks.clear();
    CHECK(reader.read().processorTicks == std::vector<ProcessorTicks>());
    standin::ticksAreTold = false;
    CHECK(!reader.read().processorTicks);
    CHECK(standin::mappedBytes == 0);
}

void memory(CounterReader &reader)
{
    // 38 words, as a kernel of macOS 15 knows them: what would be read from a wrong place is a wrong number.
    for (std::int32_t word = 0; word < 38; ++word)
        standin::memoryWords.push_back(1'000'000 + word);
    const auto read = reader.read().virtualMemory;
    CHECK(read ==
          VirtualMemory{.activeCount = 1'000'001, .wireCount = 1'000'003, .compressorPageCount = 1'000'032});
    // More than 2³¹ pages are still pages.
    standin::memoryWords[1] = -1;
    CHECK(reader.read().virtualMemory->activeCount == 0xffffffffu);
    // A record that ends before the compressor does not tell of it.
    standin::memoryWords.resize(24);
    CHECK(!reader.read().virtualMemory);
    standin::memoryIsTold = false;
    CHECK(!reader.read().virtualMemory);
}

void records(CounterReader &reader)
{
    standin::kernelValues = {{"vm.swapusage", std::string(32, 's')}};
    const auto reading = reader.read();
    CHECK(reading.swapUsage && reading.swapUsage->size() == 32);
    CHECK(!reading.pressureLevel);
    CHECK(reading.thermalState == 2 && reading.powerSources.empty() && !reading.date);
}

void links(CounterReader &reader)
{
    sockaddr link = {.sa_len = sizeof link, .sa_family = 18};
    sockaddr internet = {.sa_len = sizeof internet, .sa_family = 2};
    if_data data = {};
    data.ifi_ibytes = 4294966272;
    data.ifi_obytes = 2048;
    char name[] = "en0";
    standin::interfaces = {{.ifa_name = name, .ifa_flags = 1, .ifa_addr = &link, .ifa_data = &data},
                           {.ifa_name = name, .ifa_flags = 1, .ifa_addr = &internet}};
    const auto read = reader.read().links;
    CHECK(read.size() == 1 && read[0].receivedBytes == 4294966272 && read[0].sentBytes == 2048u);
}

} // namespace

int main()
{
    const MacCounters counters;
    CHECK(counters.pageSize() == 16384);
    standin::kernelPage = 0;
    CHECK(counters.pageSize() == 4096);
    CHECK(standin::hostReferences == 0);
    {
        const auto reader = counters.reader();
        ticks(*reader);
        memory(*reader);
        records(*reader);
        links(*reader);
        CHECK(standin::hostReferences == 1);
    }
    CHECK(standin::hostReferences == 0 && standin::interfaceLists == 0);
    return standin::result();
}
