// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <mach/boolean.h>

typedef double CGFloat;
typedef uint32_t CGDirectDisplayID;
typedef struct CGDisplayMode *CGDisplayModeRef;

struct CGSize
{
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;

typedef CF_ENUM(int32_t, CGError) { kCGErrorSuccess = 0 };

CF_EXTERN_C_BEGIN

CGError CGGetOnlineDisplayList(uint32_t maximum, CGDirectDisplayID *displays, uint32_t *count);
boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display);
boolean_t CGDisplayIsMain(CGDirectDisplayID display);
boolean_t CGDisplayIsInMirrorSet(CGDirectDisplayID display);
CGSize CGDisplayScreenSize(CGDirectDisplayID display);
CGDisplayModeRef CGDisplayCopyDisplayMode(CGDirectDisplayID display);
size_t CGDisplayModeGetWidth(CGDisplayModeRef mode);
size_t CGDisplayModeGetHeight(CGDisplayModeRef mode);
size_t CGDisplayModeGetPixelWidth(CGDisplayModeRef mode);
size_t CGDisplayModeGetPixelHeight(CGDisplayModeRef mode);
double CGDisplayModeGetRefreshRate(CGDisplayModeRef mode);

CF_EXTERN_C_END
