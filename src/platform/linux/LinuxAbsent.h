// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Displays.h"
#include "platform/Intelligence.h"
#include "platform/Registry.h"
#include "platform/Security.h"

namespace quillmark::platform {

class LinuxDisplays final : public Displays
{
public:
    std::optional<std::vector<DisplayReading>> displays() const override { return std::nullopt; }
};

class LinuxIntelligence final : public Intelligence
{
public:
    std::optional<std::int32_t> languageModelState() const override { return std::nullopt; }
    std::optional<std::vector<ComputeDevice>> computeDevices() const override { return std::nullopt; }
    std::optional<std::vector<Accelerator>> accelerators() const override { return std::nullopt; }
    std::optional<std::vector<RenderNode>> renderNodes() const override { return std::nullopt; }
};

class LinuxSecurity final : public Security
{
public:
    SecurityState read() const override { return {}; }
};

class LinuxRegistry final : public Registry
{
public:
    std::vector<PropertyMap> services(std::string_view) const override { return {}; }
};

} // namespace quillmark::platform
