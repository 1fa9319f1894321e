// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

class RecordedIntelligence final : public Intelligence
{
public:
    std::optional<std::int32_t> languageModelState() const override { return std::nullopt; }
    std::optional<std::vector<ComputeDevice>> computeDevices() const override { return std::nullopt; }
    std::optional<std::vector<Accelerator>> accelerators() const override { return std::nullopt; }
    std::optional<std::vector<RenderNode>> renderNodes() const override { return std::nullopt; }
};

} // namespace

std::unique_ptr<Intelligence> readIntelligence(const Members &)
{
    return std::make_unique<RecordedIntelligence>();
}

void write(json::Writer &, const Intelligence &) {}

} // namespace quillmark::platform::recorded
