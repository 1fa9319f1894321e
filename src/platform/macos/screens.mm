// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/screens.h"

#include "platform/macos/text.h"

#include <memory>

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>
#include <pthread.h>

namespace quillmark::platform {

namespace {

using Screens = std::map<std::uint32_t, Screen>;

Screen describe(NSScreen *screen)
{
    return {.localizedName = textOf(screen.localizedName),
            .maximumFramesPerSecond = static_cast<std::int32_t>(screen.maximumFramesPerSecond),
            .minimumRefreshInterval = screen.minimumRefreshInterval,
            .maximumRefreshInterval = screen.maximumRefreshInterval,
            .maximumPotentialRange = screen.maximumPotentialExtendedDynamicRangeColorComponentValue,
            .canRepresentP3 = static_cast<bool>([screen canRepresentDisplayGamut:NSDisplayGamutP3])};
}

Screens screensOfMainThread()
{
    @autoreleasepool {
        Screens screens;
        for (NSScreen *screen in NSScreen.screens) {
            NSNumber *number = screen.deviceDescription[@"NSScreenNumber"];
            if ([number isKindOfClass:NSNumber.class])
                screens.insert_or_assign(number.unsignedIntValue, describe(screen));
        }
        return screens;
    }
}

} // namespace

Screens readScreens()
{
    if (::pthread_main_np() != 0)
        return screensOfMainThread();
    // Shared, since the main thread may come to it after this function has given up.
    const auto screens = std::make_shared<Screens>();
    dispatch_semaphore_t done = ::dispatch_semaphore_create(0);
    ::dispatch_async(::dispatch_get_main_queue(), ^{
      *screens = screensOfMainThread();
      ::dispatch_semaphore_signal(done);
    });
    const auto second = static_cast<std::int64_t>(NSEC_PER_SEC);
    const bool isLate = ::dispatch_semaphore_wait(done, ::dispatch_time(DISPATCH_TIME_NOW, second)) != 0;
    return isLate ? Screens() : std::move(*screens);
}

} // namespace quillmark::platform
