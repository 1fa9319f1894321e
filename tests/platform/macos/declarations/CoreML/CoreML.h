// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Foundation/Foundation.h>

API_AVAILABLE(macos(14.0))
@protocol MLComputeDeviceProtocol <NSObject>
@end

API_AVAILABLE(macos(14.0))
@interface MLCPUComputeDevice : NSObject <MLComputeDeviceProtocol>
@end

API_AVAILABLE(macos(14.0))
@interface MLGPUComputeDevice : NSObject <MLComputeDeviceProtocol>
@end

API_AVAILABLE(macos(14.0))
@interface MLNeuralEngineComputeDevice : NSObject <MLComputeDeviceProtocol>
@property(readonly, nonatomic) NSInteger totalCoreCount;
@end

CF_EXTERN_C_BEGIN

NSArray<id<MLComputeDeviceProtocol>> *MLAllComputeDevices(void) API_AVAILABLE(macos(14.0));

CF_EXTERN_C_END
