// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// A display, with whatever its system tells of it. What belongs to a screen in use (name, refresh intervals,
/// range) is absent for one that sleeps or mirrors another.
struct DisplayReading
{
    std::optional<std::string> localizedName;
    bool isBuiltin = false;
    bool isMain = false;
    bool isInMirrorSet = false;
    std::optional<std::int32_t> pixelWidth; ///< of the mode in use, in pixels
    std::optional<std::int32_t> pixelHeight;
    std::optional<std::int32_t> width; ///< of the same mode, in points
    std::optional<std::int32_t> height;
    std::optional<double> refreshRate; ///< Hz; 0 when the mode does not say
    std::optional<std::int32_t> maximumFramesPerSecond;
    std::optional<double> minimumRefreshInterval; ///< seconds
    std::optional<double> maximumRefreshInterval; ///< seconds
    std::optional<double> maximumPotentialRange;  ///< times the white of ordinary content; 1 is none
    std::optional<bool> canRepresentP3;
    std::optional<double> screenWidth;    ///< mm; 0 when unknown
    std::optional<double> screenHeight;   ///< mm; 0 when unknown
    std::optional<std::string> connector; ///< Linux: the kernel's name for the plug, "HDMI-A-1"
    std::optional<Bytes> edid; ///< Linux: what the display says of itself (VESA E-EDID), as the kernel has it

    bool operator==(const DisplayReading &) const = default;
};

class Displays
{
public:
    virtual ~Displays() = default;

    /// Every display that is connected, sleeping and mirrored ones too. None when the system gives no list.
    virtual std::optional<std::vector<DisplayReading>> displays() const = 0;
};

} // namespace quillmark::platform
