// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemInformation.h"

namespace quillmark::platform {

/// NSProcessInfo and NSHost.
class MacSystemInformation final : public SystemInformation
{
public:
    OperatingSystem operatingSystem() const override;
    SystemWords words() const override { return {}; }
    std::optional<InstructionSet> instructionSet() const override { return std::nullopt; }
    std::optional<std::string> hostName() const override;
    std::int64_t physicalMemory() const override;
    std::optional<double> uptime() const override;
    std::int32_t thermalState() const override;
};

} // namespace quillmark::platform
