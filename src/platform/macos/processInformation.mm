// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/processInformation.h"

#import <Foundation/Foundation.h>

namespace quillmark::platform {

OperatingSystem processOperatingSystem()
{
    @autoreleasepool {
        const NSOperatingSystemVersion version = NSProcessInfo.processInfo.operatingSystemVersion;
        return {.name = "macOS",
                .major = static_cast<std::int32_t>(version.majorVersion),
                .minor = static_cast<std::int32_t>(version.minorVersion),
                .patch = static_cast<std::int32_t>(version.patchVersion)};
    }
}

std::int64_t processPhysicalMemory()
{
    @autoreleasepool {
        return static_cast<std::int64_t>(NSProcessInfo.processInfo.physicalMemory);
    }
}

double processSystemUptime()
{
    @autoreleasepool {
        return NSProcessInfo.processInfo.systemUptime;
    }
}

std::int32_t processThermalState()
{
    @autoreleasepool {
        return static_cast<std::int32_t>(NSProcessInfo.processInfo.thermalState);
    }
}

bool isLowPowerModeEnabled()
{
    @autoreleasepool {
        return NSProcessInfo.processInfo.lowPowerModeEnabled;
    }
}

} // namespace quillmark::platform
