// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Display.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

#include <cmath>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostDisplays = 16;
constexpr int slowestProMotion = 120; // Hz

/// With as many digits after the point as are needed, at most two: "60", "59.94".
QString shortNumber(double value, const language::Formats &formats)
{
    const auto hundredths = std::llround(value * 100);
    const int digits = hundredths % 100 == 0 ? 0 : hundredths % 10 == 0 ? 1 : 2;
    return formats.number(static_cast<double>(hundredths) / 100, digits);
}

QString nameText(const Display &display, const language::Formats &formats)
{
    if (!display.name)
        return notReadable();
    QStringList tags;
    if (display.isBuiltIn)
        tags += Text::tr("built in");
    if (display.isMain)
        tags += Text::tr("main");
    if (display.isMirrored)
        tags += Text::tr("mirrored");
    return tags.isEmpty() ? *display.name : u"%1 (%2)"_s.arg(*display.name, formats.list(tags));
}

QString sizeText(QSize size)
{
    return u"%1 × %2"_s.arg(size.width()).arg(size.height());
}

bool isVariable(const Display &display)
{
    return display.refreshRange && display.refreshRange->slowest != display.refreshRange->fastest;
}

QString resolutionText(const Display &display, const language::Formats &formats)
{
    const auto size = sizeText(*display.pixels);
    if (!display.rate)
        return size;
    const auto rate = shortNumber(*display.rate, formats);
    return isVariable(display) ? Text::tr("%1, up to %2\u00A0Hz").arg(size, rate)
                               : Text::tr("%1, %2\u00A0Hz").arg(size, rate);
}

QString scalingText(const Display &display, const language::Formats &formats)
{
    const double factor = static_cast<double>(display.pixels->width()) / display.points->width();
    const auto text = Text::tr("%1×").arg(shortNumber(factor, formats));
    return display.pixels == display.points
               ? text
               : Text::tr("%1 (looks like %2)").arg(text, sizeText(*display.points));
}

QString refreshText(const Display &display, const language::Formats &formats)
{
    if (!isVariable(display))
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
    return display.extendedRange ? Text::tr("Up to %1×").arg(shortNumber(*display.extendedRange, formats))
                                 : Text::tr("Supported");
}

QString screenText(const Display &display, const language::Formats &formats)
{
    const auto inches = shortNumber(*display.diagonal(), formats);
    if (const auto density = display.pixelsPerInch())
        return Text::tr("%1\u00A0in, %2 pixels per inch").arg(inches, formats.number(*density));
    return Text::tr("%1\u00A0in").arg(inches);
}

/// The rows of one display, whose number stands in every key, and in every label where there are others.
class DisplayRows
{
public:
    DisplayRows(const Display &display, qsizetype number, bool hasOthers)
        : m_display(display)
        , m_number(number)
        , m_hasOthers(hasOthers)
    {}

    void addName(const QString &name)
    {
        m_items += fact(u"display.%1"_s.arg(m_number),
                        m_hasOthers ? Text::tr("Display %1").arg(m_number) : Text::tr("Display"), name);
    }

    void add(const QString &key, const QString &label, const QString &value,
             CapabilityStatus status = CapabilityStatus::Info)
    {
        m_items += {.label = m_hasOthers ? Text::tr("%1 (display %2)").arg(label).arg(m_number) : label,
                    .value = value,
                    .status = status,
                    .key = u"display.%1.%2"_s.arg(m_number).arg(key)};
    }

    /// What a monitor lacks is no lack of the machine.
    void addRated(const QString &key, const QString &label, const QString &value, bool isSupported)
    {
        const auto lack = m_display.isBuiltIn ? CapabilityStatus::Unsupported : CapabilityStatus::Info;
        add(key, label, value, isSupported ? CapabilityStatus::Supported : lack);
    }

    QList<CapabilityItem> take() { return std::move(m_items); }

private:
    const Display &m_display;
    qsizetype m_number;
    bool m_hasOthers;
    QList<CapabilityItem> m_items;
};

QString wideColorText(bool hasWideColor, bool isMac)
{
    if (isMac)
        return hasWideColor ? u"Display P3"_s : u"sRGB"_s;
    return hasWideColor ? Text::tr("Supported") : Text::tr("Not supported");
}

void addRows(DisplayRows &rows, const Display &display, bool isMac, const language::Formats &formats)
{
    rows.addName(nameText(display, formats));
    if (display.pixels)
        rows.add(u"resolution"_s, Text::tr("Resolution"), resolutionText(display, formats));
    if (display.pixels && display.points)
        rows.add(u"scaling"_s, Text::tr("Scaling"), scalingText(display, formats));
    if (display.refreshRange)
        rows.addRated(u"variableRefresh"_s, Text::tr("Variable refresh rate"), refreshText(display, formats),
                      isVariable(display));
    if (display.hasExtendedRange)
        rows.addRated(u"extendedRange"_s, Text::tr("Extended dynamic range"),
                      extendedRangeText(display, formats), *display.hasExtendedRange);
    if (display.hasWideColor)
        rows.addRated(u"wideColor"_s, Text::tr("Wide color"), wideColorText(*display.hasWideColor, isMac),
                      *display.hasWideColor);
    if (display.diagonal())
        rows.add(u"size"_s, Text::tr("Size"), screenText(display, formats));
    if (display.connection)
        rows.add(u"connection"_s, Text::tr("Connection"), *display.connection);
}

/// A machine without a display is ordinary: a closed lid, a server, a session from afar.
CapabilityItem countItem(const std::optional<std::vector<platform::DisplayReading>> &readings,
                         const language::Formats &formats)
{
    QString value = notReadable();
    if (readings)
        value = readings->empty() ? Text::tr("None") : formats.number(static_cast<double>(readings->size()));
    return fact(u"displayCount"_s, Text::tr("Displays connected"), value);
}

} // namespace

CapabilitySection displaysSection(const platform::Machine &machine, const language::Formats &formats)
{
    // Core Graphics: CGGetOnlineDisplayList; Linux: the connectors in use in /sys/class/drm
    const auto readings = machine.displays().displays();
    QList<CapabilityItem> items = {countItem(readings, formats)};
    qsizetype number = 0;
    for (const auto &reading : readings.value_or(std::vector<platform::DisplayReading>())) {
        if (++number > mostDisplays)
            break;
        const auto display = isMac(machine) ? macDisplay(reading) : linuxDisplay(reading);
        DisplayRows rows(display, number, readings->size() > 1);
        addRows(rows, display, isMac(machine), formats);
        items += rows.take();
    }
    return {.title = Text::tr("Displays"),
            .symbol = u"display"_s,
            .items = std::move(items),
            .key = u"displays"_s};
}

} // namespace quillmark::inspection::DeviceProbe
