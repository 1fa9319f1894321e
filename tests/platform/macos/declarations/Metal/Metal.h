// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Foundation/Foundation.h>

typedef CF_ENUM(NSInteger, MTLGPUFamily) {
    MTLGPUFamilyApple1 = 1001,
    MTLGPUFamilyMetal3 API_AVAILABLE(macos(13.0)) = 5001,
};

@protocol MTLDevice <NSObject>
@property(readonly) NSString *name;
@property(readonly) BOOL hasUnifiedMemory API_AVAILABLE(macos(10.15));
@property(readonly, getter=isLowPower) BOOL lowPower API_AVAILABLE(macos(10.11));
@property(readonly, getter=isRemovable) BOOL removable API_AVAILABLE(macos(10.13));
@property(readonly) uint64_t recommendedMaxWorkingSetSize API_AVAILABLE(macos(10.12));
@property(readonly) BOOL supportsRaytracing API_AVAILABLE(macos(11.0));
- (BOOL)supportsFamily:(MTLGPUFamily)family API_AVAILABLE(macos(10.15));
@end

CF_EXTERN_C_BEGIN

id<MTLDevice> MTLCreateSystemDefaultDevice(void) __attribute__((ns_returns_retained));
NSArray<id<MTLDevice>> *MTLCopyAllDevices(void) __attribute__((ns_returns_retained));

CF_EXTERN_C_END
