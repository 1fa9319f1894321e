// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/PropertyJson.h"
#include "platform/recorded/Subjects.h"
#include "platform/recorded/anonymousEdid.h"

#include <utility>

namespace quillmark::platform::recorded {

namespace {

constexpr std::string_view potentialRange = "maximumPotentialExtendedDynamicRangeColorComponentValue";

class RecordedDisplays final : public Displays
{
public:
    explicit RecordedDisplays(std::optional<std::vector<DisplayReading>> displays)
        : m_displays(std::move(displays))
    {}

    std::optional<std::vector<DisplayReading>> displays() const override { return m_displays; }

private:
    std::optional<std::vector<DisplayReading>> m_displays;
};

std::optional<double> numberOf(const PropertyValue &property)
{
    if (const auto *whole = std::get_if<std::int64_t>(&property.value))
        return static_cast<double>(*whole);
    const auto *number = std::get_if<double>(&property.value);
    return number ? std::optional(*number) : std::nullopt;
}

void readScreenSize(const Members &display, DisplayReading &reading)
{
    const auto *sides = display.elements("screenSize");
    if (!sides)
        return;
    if (sides->size() == 2) {
        reading.screenWidth = numberOf(sides->front());
        reading.screenHeight = numberOf(sides->back());
    }
    if (!reading.screenWidth || !reading.screenHeight)
        display.fail("screenSize", "must hold two numbers");
}

DisplayReading readDisplay(const Members &display)
{
    DisplayReading reading{.localizedName = display.text("localizedName"),
                           .isBuiltin = display.boolean("isBuiltin").value_or(false),
                           .isMain = display.boolean("isMain").value_or(false),
                           .isInMirrorSet = display.boolean("isInMirrorSet").value_or(false),
                           .pixelWidth = display.integer<std::int32_t>("pixelWidth"),
                           .pixelHeight = display.integer<std::int32_t>("pixelHeight"),
                           .width = display.integer<std::int32_t>("width"),
                           .height = display.integer<std::int32_t>("height"),
                           .refreshRate = display.number("refreshRate"),
                           .maximumFramesPerSecond = display.integer<std::int32_t>("maximumFramesPerSecond"),
                           .minimumRefreshInterval = display.number("minimumRefreshInterval"),
                           .maximumRefreshInterval = display.number("maximumRefreshInterval"),
                           .maximumPotentialRange = display.number(potentialRange),
                           .canRepresentP3 = display.boolean("canRepresentP3"),
                           .connector = display.text("connector"),
                           .edid = get<Bytes>(display.object(), "edid")};
    readScreenSize(display, reading);
    if (!reading.edid)
        display.failType("edid", "bytes, {\"hex\": \"…\"}");
    return reading;
}

/// A built-in display bears its maker's name, and so does a monitor, which has a size. What has none shows
/// the picture elsewhere: on a television, a tablet or another computer, which their owners name.
bool isNameOfProduct(const DisplayReading &display)
{
    return display.isBuiltin || (display.screenWidth.value_or(0) > 0 && display.screenHeight.value_or(0) > 0);
}

class DisplayWriter
{
public:
    explicit DisplayWriter(json::Writer &writer)
        : m_writer(writer)
    {}

    void write(const DisplayReading &display, RecordedNames names)
    {
        m_writer.beginObject();
        if (display.connector)
            writeConnected(display);
        else
            writeScreen(display, names);
        m_writer.endObject();
    }

private:
    void writeScreen(const DisplayReading &display, RecordedNames names)
    {
        if (display.localizedName && (names == RecordedNames::Keep || isNameOfProduct(display)))
            m_writer.member("localizedName", std::string_view(*display.localizedName));
        m_writer.member("isBuiltin", display.isBuiltin);
        m_writer.member("isMain", display.isMain);
        m_writer.member("isInMirrorSet", display.isInMirrorSet);
        optional("pixelWidth", display.pixelWidth);
        optional("pixelHeight", display.pixelHeight);
        optional("width", display.width);
        optional("height", display.height);
        optional("refreshRate", display.refreshRate);
        optional("maximumFramesPerSecond", display.maximumFramesPerSecond);
        optional("minimumRefreshInterval", display.minimumRefreshInterval);
        optional("maximumRefreshInterval", display.maximumRefreshInterval);
        optional(potentialRange, display.maximumPotentialRange);
        optional("canRepresentP3", display.canRepresentP3);
        if (display.screenWidth && display.screenHeight) {
            m_writer.key("screenSize");
            m_writer.beginArray();
            m_writer.number(*display.screenWidth);
            m_writer.number(*display.screenHeight);
            m_writer.endArray();
        }
    }

    void writeConnected(const DisplayReading &display)
    {
        m_writer.member("connector", std::string_view(*display.connector));
        const auto edid = anonymousEdid(display.edid.value_or(Bytes()));
        if (!edid.empty()) {
            m_writer.key("edid");
            writeBytes(m_writer, edid);
        }
    }

    template <typename T>
    void optional(std::string_view key, const std::optional<T> &value)
    {
        if (value)
            m_writer.member(key, *value);
    }

    json::Writer &m_writer;
};

} // namespace

std::unique_ptr<Displays> readDisplays(const Members &recording)
{
    const auto objects = recording.list("displays");
    if (!objects)
        return std::make_unique<RecordedDisplays>(std::nullopt);
    std::vector<DisplayReading> displays;
    for (const auto &object : *objects)
        displays.push_back(readDisplay(object));
    return std::make_unique<RecordedDisplays>(std::move(displays));
}

void write(json::Writer &writer, const Displays &displays, RecordedNames names)
{
    const auto readings = displays.displays();
    if (!readings)
        return;
    writer.key("displays");
    writer.beginArray();
    for (const auto &display : *readings)
        DisplayWriter(writer).write(display, names);
    writer.endArray();
}

} // namespace quillmark::platform::recorded
