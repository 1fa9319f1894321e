// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// A graphics processor as Metal describes it (MTLDevice).
struct GraphicsDevice
{
    std::string name;
    bool hasUnifiedMemory = false;
    bool isLowPower = false;                        ///< the integrated one of two
    bool isRemovable = false;                       ///< in an external enclosure
    std::uint64_t recommendedMaxWorkingSetSize = 0; ///< bytes
    bool supportsRaytracing = false;
    std::vector<std::int32_t>
        families; ///< MTLGPUFamily codes it supports: 1000 + n for Apple n, 5001 for Metal 3, …

    bool supportsFamily(std::int32_t family) const
    {
        return std::ranges::find(families, family) != families.end();
    }

    bool operator==(const GraphicsDevice &) const = default;
};

/// Every question about graphics, asked at once: on a laptop with two processors asking may switch one of
/// them on.
struct GraphicsReading
{
    std::optional<GraphicsDevice> defaultDevice; ///< none: no Metal on this machine
    std::vector<GraphicsDevice> devices;         ///< all, in the system's order

    bool operator==(const GraphicsReading &) const = default;
};

class Graphics
{
public:
    virtual ~Graphics() = default;

    virtual GraphicsReading read() const = 0;
};

} // namespace quillmark::platform
