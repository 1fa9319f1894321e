// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace quillmark::platform {

/// What AppKit tells of a screen in use (NSScreen).
struct Screen
{
    std::optional<std::string> localizedName;
    std::int32_t maximumFramesPerSecond = 0;
    double minimumRefreshInterval = 0; ///< seconds
    double maximumRefreshInterval = 0; ///< seconds
    double maximumPotentialRange = 0;  ///< times the white of ordinary content
    bool canRepresentP3 = false;
};

/// By the number of the display (CGDirectDisplayID). Screens are the main thread's: another one waits for its
/// answer, for a second at most, and has none after that.
std::map<std::uint32_t, Screen> readScreens();

} // namespace quillmark::platform
