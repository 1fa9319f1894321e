// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Displays.h"

#include <QSize>
#include <QSizeF>
#include <QString>

#include <optional>

namespace quillmark::inspection {

/// The slowest and the fastest rate, in whole Hz; equal for a display of one rate.
struct RefreshRange
{
    int slowest = 0;
    int fastest = 0;
};

/// A display as its rows tell of it, whichever system it is on. What is not known, or cannot be true, is
/// absent.
struct Display
{
    std::optional<QString> name;
    bool isBuiltIn = false;
    bool isMain = false;
    bool isMirrored = false;
    std::optional<QSize> pixels;
    std::optional<QSize> points; ///< that the pixels are shown as
    std::optional<double> rate;  ///< Hz
    std::optional<RefreshRange> refreshRange;
    std::optional<bool> hasExtendedRange;
    std::optional<double> extendedRange; ///< times the white of ordinary content
    std::optional<bool> hasWideColor;
    std::optional<QSizeF> screenSize;  ///< mm
    std::optional<QString> connection; ///< the kind of plug in the interface language

    /// In inches, to one decimal as it is shown. None without a size, or with one that no display has.
    std::optional<double> diagonal() const;
    /// By the diagonal that is shown.
    std::optional<int> pixelsPerInch() const;
};

Display macDisplay(const platform::DisplayReading &reading);
Display linuxDisplay(const platform::DisplayReading &reading);

} // namespace quillmark::inspection
