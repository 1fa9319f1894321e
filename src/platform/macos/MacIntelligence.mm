// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacIntelligence.h"

#include "platform/macos/languageModel.h"

#import <CoreML/CoreML.h>

namespace quillmark::platform {

namespace {

API_AVAILABLE(macos(14.0))
ComputeDevice describe(id<MLComputeDeviceProtocol> device)
{
    if ([device isKindOfClass:MLCPUComputeDevice.class])
        return {.kind = ComputeDevice::Kind::Cpu};
    if ([device isKindOfClass:MLGPUComputeDevice.class])
        return {.kind = ComputeDevice::Kind::Gpu};
    if ([device isKindOfClass:MLNeuralEngineComputeDevice.class])
        return {.kind = ComputeDevice::Kind::NeuralEngine,
                .totalCoreCount = static_cast<MLNeuralEngineComputeDevice *>(device).totalCoreCount};
    return {};
}

} // namespace

std::optional<std::int32_t> MacIntelligence::languageModelState() const
{
    const std::int32_t state = ::quillmarkLanguageModelState();
    return state < 0 ? std::nullopt : std::optional(state);
}

std::optional<std::vector<ComputeDevice>> MacIntelligence::computeDevices() const
{
    if (@available(macOS 14.0, *)) {
        @autoreleasepool {
            std::vector<ComputeDevice> devices;
            for (id<MLComputeDeviceProtocol> device in MLAllComputeDevices())
                devices.push_back(describe(device));
            return devices;
        }
    }
    return std::nullopt;
}

} // namespace quillmark::platform
