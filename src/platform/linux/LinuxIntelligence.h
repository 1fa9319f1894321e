// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Intelligence.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// What computes beside the processor: neural processors in /sys/class/accel and on the PCI bus, and the
/// render nodes of the graphics processors. No node is opened, as that would wake what sleeps. Linux has no
/// language model and no Core ML.
class LinuxIntelligence final : public Intelligence
{
public:
    explicit LinuxIntelligence(const Files &files);

    std::optional<std::int32_t> languageModelState() const override { return std::nullopt; }
    std::optional<std::vector<ComputeDevice>> computeDevices() const override { return std::nullopt; }

    /// Those with a node of their own, then those of PCI class 0x1200 that no driver has taken, named by
    /// their address on the bus. Each kind in the order of its names.
    std::optional<std::vector<Accelerator>> accelerators() const override;

    /// In the order of their numbers.
    std::optional<std::vector<RenderNode>> renderNodes() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
