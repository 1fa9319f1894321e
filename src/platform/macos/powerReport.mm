// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/powerReport.h"

#include "platform/macos/cf.h"
#include "platform/posix/ChildProcess.h"

#include <chrono>

#import <Foundation/Foundation.h>

namespace quillmark::platform {

namespace {

/// Null for what is no JSON.
PropertyValue parsed(std::string_view json)
{
    @autoreleasepool {
        NSData *data = [NSData dataWithBytes:json.data() length:json.size()];
        const cf::Owner object(
            (__bridge_retained CFTypeRef)[NSJSONSerialization JSONObjectWithData:data options:0 error:nil]);
        return cf::propertyValue(object.get());
    }
}

std::optional<PropertyMap> batteryHealth(const PropertyValue &report)
{
    const auto *all = std::get_if<PropertyMap>(&report.value);
    const auto *parts = all ? find<PropertyList>(*all, "SPPowerDataType") : nullptr;
    if (!parts)
        return std::nullopt;
    for (const PropertyValue &part : *parts) {
        const auto *properties = std::get_if<PropertyMap>(&part.value);
        if (auto health =
                properties ? get<PropertyMap>(*properties, "sppower_battery_health_info") : std::nullopt)
            return health;
    }
    return std::nullopt;
}

} // namespace

std::optional<PropertyMap> readPowerReport()
{
    constexpr std::chrono::seconds timeLimit(10);
    const auto deadline = ChildProcess::Clock::now() + timeLimit;
    ChildProcess profiler({"/usr/sbin/system_profiler", "SPPowerDataType", "-json"});
    const auto answer = profiler.answer(deadline);
    if (!answer || answer->exitStatus != 0)
        return std::nullopt;
    // What it complains of follows, and is not JSON.
    constexpr std::string_view end = "\n}";
    const auto last = answer->output.rfind(end);
    if (last == std::string::npos)
        return std::nullopt;
    return batteryHealth(parsed(std::string_view(answer->output).substr(0, last + end.size())));
}

} // namespace quillmark::platform
