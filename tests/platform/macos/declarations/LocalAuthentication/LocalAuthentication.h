// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Foundation/Foundation.h>

typedef CF_ENUM(NSInteger, LAPolicy) {
    LAPolicyDeviceOwnerAuthenticationWithBiometrics API_AVAILABLE(macos(10.12.2)) = 1,
};

typedef CF_ENUM(NSInteger, LABiometryType) {
    LABiometryTypeNone = 0,
    LABiometryTypeTouchID = 1,
};

@interface LAContext : NSObject
- (BOOL)canEvaluatePolicy:(LAPolicy)policy error:(NSError *__autoreleasing *)error;
@property(nonatomic, readonly) LABiometryType biometryType API_AVAILABLE(macos(10.13.2));
@end
