// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// A device that Core ML computes on (MLAllComputeDevices).
struct ComputeDevice
{
    enum class Kind { Cpu, Gpu, NeuralEngine, Other };

    Kind kind = Kind::Other;
    std::optional<std::int64_t> totalCoreCount; ///< of a Neural Engine

    bool operator==(const ComputeDevice &) const = default;
};

/// A neural processor on Linux (/sys/class/accel, PCI class 0x1200).
struct Accelerator
{
    std::string name;
    std::optional<std::string> driver;

    bool operator==(const Accelerator &) const = default;
};

/// A graphics processor's node for computing on Linux (/dev/dri/renderD…).
struct RenderNode
{
    std::string name; ///< "renderD128"
    std::optional<std::string> driver;
    bool accessible = false;                  ///< this process may open it; it was not opened
    std::optional<std::string> runtimeStatus; ///< "active", "suspended", "unsupported"

    bool operator==(const RenderNode &) const = default;
};

class Intelligence
{
public:
    virtual ~Intelligence() = default;

    /// The on-device language model: 0 available, 1 this machine is not eligible, 2 Apple Intelligence is
    /// off, 3 not ready, 4 unknown, 5 the system is too old. None when there is no answer. Asking neither
    /// prompts nor downloads.
    virtual std::optional<std::int32_t> languageModelState() const = 0;

    /// None, here and below, when the system gives no list.
    virtual std::optional<std::vector<ComputeDevice>> computeDevices() const = 0;
    virtual std::optional<std::vector<Accelerator>> accelerators() const = 0;
    virtual std::optional<std::vector<RenderNode>> renderNodes() const = 0;
};

} // namespace quillmark::platform
