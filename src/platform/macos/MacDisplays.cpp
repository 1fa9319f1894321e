// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacDisplays.h"

#include "platform/macos/cf.h"
#include "platform/macos/screens.h"

#include <CoreGraphics/CoreGraphics.h>

namespace quillmark::platform {

namespace {

std::optional<std::vector<CGDirectDisplayID>> onlineDisplays()
{
    std::uint32_t count = 0;
    if (::CGGetOnlineDisplayList(0, nullptr, &count) != kCGErrorSuccess)
        return std::nullopt;
    // Room for what is connected between the two calls.
    std::vector<CGDirectDisplayID> displays(count + 4);
    if (::CGGetOnlineDisplayList(static_cast<std::uint32_t>(displays.size()), displays.data(), &count) !=
        kCGErrorSuccess)
        return std::nullopt;
    displays.resize(count);
    return displays;
}

void readMode(CGDirectDisplayID display, DisplayReading &reading)
{
    const cf::Owner mode(::CGDisplayCopyDisplayMode(display));
    if (!mode)
        return;
    reading.pixelWidth = static_cast<std::int32_t>(::CGDisplayModeGetPixelWidth(mode.get()));
    reading.pixelHeight = static_cast<std::int32_t>(::CGDisplayModeGetPixelHeight(mode.get()));
    reading.width = static_cast<std::int32_t>(::CGDisplayModeGetWidth(mode.get()));
    reading.height = static_cast<std::int32_t>(::CGDisplayModeGetHeight(mode.get()));
    reading.refreshRate = ::CGDisplayModeGetRefreshRate(mode.get());
}

void readScreen(const Screen &screen, DisplayReading &reading)
{
    reading.localizedName = screen.localizedName;
    reading.maximumFramesPerSecond = screen.maximumFramesPerSecond;
    reading.minimumRefreshInterval = screen.minimumRefreshInterval;
    reading.maximumRefreshInterval = screen.maximumRefreshInterval;
    reading.maximumPotentialRange = screen.maximumPotentialRange;
    reading.canRepresentP3 = screen.canRepresentP3;
}

} // namespace

std::optional<std::vector<DisplayReading>> MacDisplays::displays() const
{
    const auto online = onlineDisplays();
    if (!online)
        return std::nullopt;
    const auto screens = readScreens();
    std::vector<DisplayReading> readings;
    for (const CGDirectDisplayID display : *online) {
        const CGSize size = ::CGDisplayScreenSize(display);
        DisplayReading reading = {.isBuiltin = ::CGDisplayIsBuiltin(display) != 0,
                                  .isMain = ::CGDisplayIsMain(display) != 0,
                                  .isInMirrorSet = ::CGDisplayIsInMirrorSet(display) != 0,
                                  .screenWidth = size.width,
                                  .screenHeight = size.height};
        readMode(display, reading);
        if (const auto screen = screens.find(display); screen != screens.end())
            readScreen(screen->second, reading);
        readings.push_back(std::move(reading));
    }
    return readings;
}

} // namespace quillmark::platform
