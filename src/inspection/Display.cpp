// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/Display.h"

#include "inspection/Edid.h"
#include "inspection/Text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

constexpr double fastestRate = 1000; // Hz; beyond it an answer cannot be true
constexpr double mostRange = 1000;
constexpr double differentIntervals = 0.0001; // s

std::optional<QSize> sizeOf(std::optional<std::int32_t> width, std::optional<std::int32_t> height)
{
    const QSize size(width.value_or(0), height.value_or(0));
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

bool isRate(double rate)
{
    return rate >= 1 && rate <= fastestRate;
}

std::optional<double> rateOf(const platform::DisplayReading &reading)
{
    double rate = reading.refreshRate.value_or(0);
    if (rate == 0) // a mode whose rate varies has none
        rate = reading.maximumFramesPerSecond.value_or(0);
    return isRate(rate) ? std::optional(rate) : std::nullopt;
}

std::optional<RefreshRange> refreshRangeOf(const platform::DisplayReading &reading)
{
    const double shortest = reading.minimumRefreshInterval.value_or(0);
    const double longest = reading.maximumRefreshInterval.value_or(0);
    if (!(shortest > 0) || !(longest > 0) || !isRate(1 / shortest) || !isRate(1 / longest))
        return std::nullopt;
    const int fastest = static_cast<int>(std::lround(1 / shortest));
    const bool isVariable = std::abs(longest - shortest) > differentIntervals;
    const int slowest = isVariable ? static_cast<int>(std::lround(1 / longest)) : fastest;
    return RefreshRange{.slowest = std::min(slowest, fastest), .fastest = std::max(slowest, fastest)};
}

/// As it is shown, with two digits after the point.
std::optional<double> potentialRange(const platform::DisplayReading &reading)
{
    const double range = reading.maximumPotentialRange.value_or(0);
    return range >= 1 && range <= mostRange ? std::optional(std::round(range * 100) / 100) : std::nullopt;
}

QString kindOfConnector(const QString &connector)
{
    return connector.section(u'-', 0, 0);
}

bool isInternal(const QString &kind)
{
    constexpr std::array kinds = {"eDP"_L1, "LVDS"_L1, "DSI"_L1};
    return std::ranges::find(kinds, kind) != kinds.end();
}

QString connectionOf(const QString &connector)
{
    const auto kind = kindOfConnector(connector);
    if (isInternal(kind))
        //: How a display is connected.
        return Text::tr("Internal");
    if (kind == "DP"_L1)
        return u"DisplayPort"_s;
    return kind == "HDMI"_L1 || kind == "DVI"_L1 || kind == "VGA"_L1 ? kind : connector;
}

} // namespace

Display macDisplay(const platform::DisplayReading &reading)
{
    Display display;
    // AppKit: NSScreen.localizedName
    if (const auto &name = reading.localizedName; name && !name->empty())
        display.name = QString::fromStdString(*name);
    // Core Graphics: CGDisplayIsBuiltin, CGDisplayIsMain, CGDisplayIsInMirrorSet
    display.isBuiltIn = reading.isBuiltin;
    display.isMain = reading.isMain;
    display.isMirrored = reading.isInMirrorSet;
    // Core Graphics: size of the display mode, in pixels and in points
    display.pixels = sizeOf(reading.pixelWidth, reading.pixelHeight);
    display.points = sizeOf(reading.width, reading.height);
    // Core Graphics: CGDisplayModeGetRefreshRate; when that is 0, NSScreen.maximumFramesPerSecond
    display.rate = rateOf(reading);
    // AppKit: NSScreen.minimumRefreshInterval, maximumRefreshInterval
    display.refreshRange = refreshRangeOf(reading);
    // AppKit: what the screen could show; what it shows now is 1 until something uses more
    if (const auto range = potentialRange(reading)) {
        display.extendedRange = range;
        display.hasExtendedRange = *range > 1;
    }
    // AppKit: canRepresentDisplayGamut: of Display P3
    display.hasWideColor = reading.canRepresentP3;
    // Core Graphics: CGDisplayScreenSize
    if (const QSizeF size(reading.screenWidth.value_or(0), reading.screenHeight.value_or(0)); !size.isEmpty())
        display.screenSize = size;
    return display;
}

Display linuxDisplay(const platform::DisplayReading &reading)
{
    Display display;
    // Linux: name of the connector in /sys/class/drm
    if (reading.connector) {
        const auto connector = QString::fromStdString(*reading.connector);
        display.isBuiltIn = isInternal(kindOfConnector(connector));
        display.connection = connectionOf(connector);
    }
    const auto edid = reading.edid ? parseEdid(*reading.edid) : std::nullopt;
    if (!edid)
        return display;
    // EDID: the product's name
    display.name = edid->name;
    // EDID: the first detailed timing, which is the preferred one
    display.pixels = edid->preferredSize;
    if (const double rate = edid->preferredRate.value_or(0); isRate(rate))
        display.rate = rate;
    // EDID: the first detailed timing, else the screen's size in whole centimetres
    display.screenSize = edid->screenSize;
    // EDID: static metadata of high dynamic range; colorimetry
    display.hasExtendedRange = edid->hasHighDynamicRange;
    display.hasWideColor = edid->hasWideColor;
    return display;
}

std::optional<double> Display::diagonal() const
{
    constexpr double least = 3;
    constexpr double most = 120;
    constexpr double millimetresPerInch = 25.4;
    if (!screenSize)
        return std::nullopt;
    const double inches = std::hypot(screenSize->width(), screenSize->height()) / millimetresPerInch;
    if (!(inches >= least && inches <= most))
        return std::nullopt;
    return std::round(inches * 10) / 10;
}

std::optional<int> Display::pixelsPerInch() const
{
    const auto inches = diagonal();
    if (!inches || !pixels)
        return std::nullopt;
    return static_cast<int>(std::lround(std::hypot(pixels->width(), pixels->height()) / *inches));
}

} // namespace quillmark::inspection
