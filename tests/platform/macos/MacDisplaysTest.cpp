// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacDisplays.h"

#include "check.h"
#include "coreFoundation.h"
#include "objectiveC.h"

#include <algorithm>

#include <CoreGraphics/CoreGraphics.h>

CLASS(NSNumber);
CLASS(NSScreen);

using namespace quillmark::platform;
using namespace standin::objc;

namespace {

struct Online
{
    CGDirectDisplayID id;
    bool isBuiltin;
    int pixels; ///< of its mode's width; 0: it has no mode
};

std::vector<Online> online;
CGError status = kCGErrorSuccess;
bool onMainThread = true;
bool isMainThreadBusy = false;
std::vector<void (^)()> posted;

} // namespace

extern "C" {

CGError CGGetOnlineDisplayList(uint32_t maximum, CGDirectDisplayID *displays, uint32_t *count)
{
    *count = static_cast<uint32_t>(online.size());
    if (displays) {
        *count = std::min(maximum, *count);
        std::ranges::transform(online.begin(), online.begin() + *count, displays, &Online::id);
    }
    return status;
}
boolean_t CGDisplayIsBuiltin(CGDirectDisplayID id)
{
    return std::ranges::find(online, id, &Online::id)->isBuiltin;
}
boolean_t CGDisplayIsMain(CGDirectDisplayID id)
{
    return id == 1;
}
boolean_t CGDisplayIsInMirrorSet(CGDirectDisplayID id)
{
    return id == 2;
}
CGSize CGDisplayScreenSize(CGDirectDisplayID id)
{
    return {301.6, id == 1 ? 195.9 : 0};
}
CGDisplayModeRef CGDisplayCopyDisplayMode(CGDirectDisplayID id)
{
    const int pixels = std::ranges::find(online, id, &Online::id)->pixels;
    return pixels > 0 ? reinterpret_cast<CGDisplayModeRef>(const_cast<void *>(standin::number(pixels)))
                      : nullptr;
}
size_t CGDisplayModeGetPixelWidth(CGDisplayModeRef mode)
{
    long long pixels = 0;
    CFNumberGetValue(reinterpret_cast<CFNumberRef>(mode), kCFNumberSInt64Type, &pixels);
    return static_cast<size_t>(pixels);
}
size_t CGDisplayModeGetPixelHeight(CGDisplayModeRef mode)
{
    return CGDisplayModeGetPixelWidth(mode) / 2;
}
size_t CGDisplayModeGetWidth(CGDisplayModeRef mode)
{
    return CGDisplayModeGetPixelWidth(mode) / 4;
}
size_t CGDisplayModeGetHeight(CGDisplayModeRef mode)
{
    return CGDisplayModeGetPixelWidth(mode) / 8;
}
double CGDisplayModeGetRefreshRate(CGDisplayModeRef)
{
    return 0;
}

// The main thread's queue.
int pthread_main_np()
{
    return onMainThread;
}
int _dispatch_main_q[16];
void *dispatch_semaphore_create(long)
{
    return thing("semaphore");
}
std::uint64_t dispatch_time(std::uint64_t, std::int64_t delta)
{
    CHECK(delta == 1'000'000'000);
    return 1;
}
void dispatch_async(void *queue, void (^block)())
{
    CHECK(queue == _dispatch_main_q);
    if (isMainThreadBusy)
        return;
    onMainThread = true;
    block();
    onMainThread = false;
}
long dispatch_semaphore_signal(Thing *semaphore)
{
    semaphore->name = "signalled";
    return 0;
}
long dispatch_semaphore_wait(Thing *semaphore, std::uint64_t)
{
    return semaphore->name != "signalled";
}
int _NSConcreteStackBlock[32];
}

namespace {

void fillScreens()
{
    auto *number = thing("number", {{"unsignedIntValue", answers(word(1))}}, &classNSNumber);
    auto *description = thing("description");
    description->methods["objectForKeyedSubscript:"] = [number](const std::uint64_t *arguments) {
        return pointer(literal(arguments[0]) == "NSScreenNumber" ? number : nullptr);
    };
    const auto gamut = [](const std::uint64_t *arguments) { return word(arguments[0] == 2); };
    auto *screen =
        thing("screen", {{"deviceDescription", answers(pointer(description))},
                         {"localizedName", answers(pointer(string("Built-in Retina Display")))},
                         {"maximumFramesPerSecond", answers(word(120))},
                         {"minimumRefreshInterval", answers(real(0.008333))},
                         {"maximumRefreshInterval", answers(real(0.041667))},
                         {"maximumPotentialExtendedDynamicRangeColorComponentValue", answers(real(16))},
                         {"canRepresentDisplayGamut:", gamut}});
    auto *odd = thing("screen", {{"deviceDescription", answers(word(0))}});
    NSScreen.methods["screens"] = answers(pointer(array({screen, odd})));
}

} // namespace

int main()
{
    fillScreens();
    const MacDisplays displays;
    CHECK(displays.displays() == std::vector<DisplayReading>());
    online = {{1, true, 3024}, {2, false, 0}};
    const DisplayReading sleeping = {.isInMirrorSet = true, .screenWidth = 301.6, .screenHeight = 0};
    DisplayReading builtIn = {.isBuiltin = true,
                              .isMain = true,
                              .pixelWidth = 3024,
                              .pixelHeight = 1512,
                              .width = 756,
                              .height = 378,
                              .refreshRate = 0,
                              .screenWidth = 301.6,
                              .screenHeight = 195.9};
    const DisplayReading withoutScreen = builtIn;
    builtIn.localizedName = "Built-in Retina Display";
    builtIn.maximumFramesPerSecond = 120;
    builtIn.minimumRefreshInterval = 0.008333;
    builtIn.maximumRefreshInterval = 0.041667;
    builtIn.maximumPotentialRange = 16;
    builtIn.canRepresentP3 = true;
    CHECK(displays.displays() == std::vector{builtIn, sleeping});

    // From another thread the main one is asked, and given up when it does not come to it.
    onMainThread = false;
    CHECK(displays.displays() == std::vector{builtIn, sleeping});
    isMainThreadBusy = true;
    CHECK(displays.displays() == std::vector{withoutScreen, sleeping});

    status = CGError{1001};
    CHECK(!displays.displays());
    CHECK(standin::references == 0 && unanswered.empty());
    return standin::result();
}
