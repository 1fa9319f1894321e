// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacSystemInformation.h"

#include "platform/macos/processInformation.h"
#include "platform/macos/text.h"

#import <Foundation/Foundation.h>

namespace quillmark::platform {

OperatingSystem MacSystemInformation::operatingSystem() const
{
    return processOperatingSystem();
}

std::optional<std::string> MacSystemInformation::hostName() const
{
    @autoreleasepool {
        // Its other names are looked up in the DNS, this one is a setting.
        return textOf(NSHost.currentHost.localizedName);
    }
}

std::int64_t MacSystemInformation::physicalMemory() const
{
    return processPhysicalMemory();
}

std::optional<double> MacSystemInformation::uptime() const
{
    return processSystemUptime();
}

std::int32_t MacSystemInformation::thermalState() const
{
    return processThermalState();
}

} // namespace quillmark::platform
