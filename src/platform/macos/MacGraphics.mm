// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacGraphics.h"

#include "platform/macos/text.h"

#include <array>

#import <Metal/Metal.h>

namespace quillmark::platform {

namespace {

/// MTLGPUFamily, as numbers: a system answers no to those that it does not know yet, while the names come
/// with newer SDKs only. Apple 1 to 12, Mac 2, common 1 to 3, Metal 3 and 4.
constexpr std::array families = {1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009,
                                 1010, 1011, 1012, 2002, 3001, 3002, 3003, 5001, 5002};

GraphicsDevice describe(id<MTLDevice> device)
{
    GraphicsDevice description = {.name = textOf(device.name).value_or(std::string()),
                                  .hasUnifiedMemory = static_cast<bool>(device.hasUnifiedMemory),
                                  .isLowPower = static_cast<bool>(device.lowPower),
                                  .isRemovable = static_cast<bool>(device.removable),
                                  .recommendedMaxWorkingSetSize = device.recommendedMaxWorkingSetSize,
                                  .supportsRaytracing = static_cast<bool>(device.supportsRaytracing)};
    for (const int family : families) {
        if ([device supportsFamily:static_cast<MTLGPUFamily>(family)])
            description.families.push_back(family);
    }
    return description;
}

} // namespace

GraphicsReading MacGraphics::read() const
{
    @autoreleasepool {
        GraphicsReading reading;
        if (id<MTLDevice> device = MTLCreateSystemDefaultDevice())
            reading.defaultDevice = describe(device);
        for (id<MTLDevice> device in MTLCopyAllDevices())
            reading.devices.push_back(describe(device));
        return reading;
    }
}

} // namespace quillmark::platform
