// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Intelligence.h"

namespace quillmark::platform {

/// FoundationModels and Core ML.
class MacIntelligence final : public Intelligence
{
public:
    std::optional<std::int32_t> languageModelState() const override;
    /// From macOS 14.
    std::optional<std::vector<ComputeDevice>> computeDevices() const override;
    std::optional<std::vector<Accelerator>> accelerators() const override { return std::nullopt; }
    std::optional<std::vector<RenderNode>> renderNodes() const override { return std::nullopt; }
};

} // namespace quillmark::platform
