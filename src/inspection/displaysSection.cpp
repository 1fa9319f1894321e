// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Display.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

constexpr int slowestProMotion = 120; // Hz

QString nameText(const Display &display, const language::Formats &formats)
{
    if (!display.name)
        return notReadable();
    QStringList tags;
    if (display.isBuiltIn)
        tags += Text::tr("built in");
    if (display.isMain)
        //: Stands behind a display’s name in parentheses.
        tags += Text::tr("main");
    if (display.isMirrored)
        tags += Text::tr("mirrored");
    return withTags(*display.name, tags, formats);
}

QString sizeText(QSize size)
{
    return inspection::sizeText(size.width(), size.height());
}

bool isVariable(const Display &display)
{
    return display.refreshRange && display.refreshRange->slowest != display.refreshRange->fastest;
}

QString resolutionText(const Display &display, const language::Formats &formats)
{
    auto size = sizeText(*display.pixels);
    if (!display.rate)
        return size;
    const auto rate = shortNumber(*display.rate, 2, formats);
    return isVariable(display) ? Text::tr("%1, up to %2\u00A0Hz").arg(size, rate)
                               : Text::tr("%1, %2\u00A0Hz").arg(size, rate);
}

QString scalingText(const Display &display, const language::Formats &formats)
{
    const double factor = static_cast<double>(display.pixels->width()) / display.points->width();
    const auto text = Text::tr("%1×").arg(shortNumber(factor, 2, formats));
    return display.pixels == display.points
               ? text
               : Text::tr("%1 (looks like %2)").arg(text, sizeText(*display.points));
}

QString refreshText(const Display &display, const language::Formats &formats)
{
    if (!isVariable(display))
        //: Of a display’s refresh rate.
        return Text::tr("Fixed");
    const auto &[slowest, fastest] = *display.refreshRange;
    const bool isProMotion = display.isBuiltIn && fastest >= slowestProMotion;
    return (isProMotion ? Text::tr("%1 to %2\u00A0Hz (ProMotion)") : Text::tr("%1 to %2\u00A0Hz"))
        .arg(formats.number(slowest), formats.number(fastest));
}

QString extendedRangeText(const Display &display, const language::Formats &formats)
{
    if (!*display.hasExtendedRange)
        return Text::tr("Not supported");
    return display.extendedRange ? Text::tr("Up to %1×").arg(shortNumber(*display.extendedRange, 2, formats))
                                 : Text::tr("Supported");
}

QString screenText(const Display &display, const language::Formats &formats)
{
    const auto inches = shortNumber(*display.diagonal(), 2, formats);
    if (const auto density = display.pixelsPerInch())
        //: A size in inches.
        return Text::tr("%1\u00A0in, %2 pixels per inch").arg(inches, formats.number(*density));
    return Text::tr("%1\u00A0in").arg(inches);
}

/// What a monitor lacks is no lack of the machine.
Verdict traitVerdict(const Display &display, const QString &text, bool isSupported)
{
    const auto lack = display.isBuiltIn ? CapabilityStatus::Unsupported : CapabilityStatus::Info;
    return {text, isSupported ? CapabilityStatus::Supported : lack};
}

QString wideColorText(bool hasWideColor, bool onMac)
{
    if (onMac)
        return hasWideColor ? u"Display P3"_s : u"sRGB"_s;
    return hasWideColor ? Text::tr("Supported") : Text::tr("Not supported");
}

/// What kind of picture the display can show.
QList<CapabilityItem> traitItems(const Display &display, const QString &key, const Numbered &place,
                                 bool onMac, const language::Formats &formats)
{
    QList<CapabilityItem> items;
    if (display.refreshRange)
        items += judged(
            key + u".variableRefresh"_s,
            place.label(Text::tr("Variable refresh rate"), Text::tr("Variable refresh rate (display %1)")),
            traitVerdict(display, refreshText(display, formats), isVariable(display)));
    if (display.hasExtendedRange)
        items += judged(
            key + u".extendedRange"_s,
            place.label(Text::tr("Extended dynamic range"), Text::tr("Extended dynamic range (display %1)")),
            traitVerdict(display, extendedRangeText(display, formats), *display.hasExtendedRange));
    if (display.hasWideColor)
        items += judged(
            key + u".wideColor"_s, place.label(Text::tr("Wide color"), Text::tr("Wide color (display %1)")),
            traitVerdict(display, wideColorText(*display.hasWideColor, onMac), *display.hasWideColor));
    return items;
}

QList<CapabilityItem> displayItems(const Display &display, const Numbered &place, bool onMac,
                                   const language::Formats &formats)
{
    const auto key = u"display.%1"_s.arg(place.number);
    QList<CapabilityItem> items = {
        fact(key, place.label(Text::tr("Display"), Text::tr("Display %1")), nameText(display, formats))};
    if (display.pixels)
        items += fact(key + u".resolution"_s,
                      place.label(Text::tr("Resolution"), Text::tr("Resolution (display %1)")),
                      resolutionText(display, formats));
    if (display.pixels && display.points)
        items += fact(key + u".scaling"_s, place.label(Text::tr("Scaling"), Text::tr("Scaling (display %1)")),
                      scalingText(display, formats));
    items += traitItems(display, key, place, onMac, formats);
    if (display.diagonal())
        items += fact(key + u".size"_s, place.label(Text::tr("Size"), Text::tr("Size (display %1)")),
                      screenText(display, formats));
    if (display.connection)
        items += fact(key + u".connection"_s,
                      place.label(Text::tr("Connection"), Text::tr("Connection (display %1)")),
                      *display.connection);
    return items;
}

/// A machine without a display is ordinary: a closed lid, a server, a session from afar.
QString countText(const std::optional<std::vector<platform::DisplayReading>> &readings,
                  const language::Formats &formats)
{
    if (!readings)
        return notReadable();
    return readings->empty() ? Text::tr("None")
                             : wholeNumber(static_cast<std::int64_t>(readings->size()), formats);
}

Display displayOf(const platform::DisplayReading &reading, bool onMac)
{
    return onMac ? macDisplay(reading) : linuxDisplay(reading);
}

} // namespace

std::optional<int> builtInDisplay(const platform::Machine &machine)
{
    const auto readings = machine.displays().displays().value_or(std::vector<platform::DisplayReading>());
    const bool onMac = isMac(machine);
    const auto found = std::ranges::find_if(
        readings, [onMac](const auto &reading) { return displayOf(reading, onMac).isBuiltIn; });
    if (found == readings.end())
        return std::nullopt;
    return static_cast<int>(found - readings.begin()) + 1;
}

CapabilitySection displaysSection(const platform::Machine &machine, const language::Formats &formats)
{
    // Core Graphics: CGGetOnlineDisplayList; Linux: the connectors in use in /sys/class/drm
    const auto readings = machine.displays().displays();
    QList<CapabilityItem> items = {
        fact(u"displayCount"_s, Text::tr("Displays connected"), countText(readings, formats))};
    const bool onMac = isMac(machine);
    Numbered place{.isOnly = readings && readings->size() == 1};
    for (const auto &reading : readings.value_or(std::vector<platform::DisplayReading>())) {
        if (place.number > mostOfAKind)
            break;
        items += displayItems(displayOf(reading, onMac), place, onMac, formats);
        ++place.number;
    }
    return sectionOf(u"displays", std::move(items));
}

} // namespace quillmark::inspection::DeviceProbe
