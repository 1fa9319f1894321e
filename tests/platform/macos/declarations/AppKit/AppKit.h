// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/Foundation.h>

typedef NSString *NSDeviceDescriptionKey;

typedef CF_ENUM(NSInteger, NSDisplayGamut) {
    NSDisplayGamutSRGB = 1,
    NSDisplayGamutP3 = 2,
};

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen *> *screens;
@property(readonly, copy) NSDictionary<NSDeviceDescriptionKey, id> *deviceDescription;
@property(readonly, copy) NSString *localizedName API_AVAILABLE(macos(10.15));
@property(readonly) NSInteger maximumFramesPerSecond API_AVAILABLE(macos(12.0));
@property(readonly) NSTimeInterval minimumRefreshInterval API_AVAILABLE(macos(12.0));
@property(readonly) NSTimeInterval maximumRefreshInterval API_AVAILABLE(macos(12.0));
@property(readonly)
    CGFloat maximumPotentialExtendedDynamicRangeColorComponentValue API_AVAILABLE(macos(10.15));
- (BOOL)canRepresentDisplayGamut:(NSDisplayGamut)gamut API_AVAILABLE(macos(10.12));
@end
