// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <limits>

namespace quillmark::platform::recorded {

namespace {

class RecordedGraphics final : public Graphics
{
public:
    explicit RecordedGraphics(GraphicsReading reading)
        : m_reading(std::move(reading))
    {}

    GraphicsReading read() const override { return m_reading; }

private:
    GraphicsReading m_reading;
};

GraphicsDevice readDevice(const Members &device)
{
    GraphicsDevice reading;
    reading.name = device.required(device.text("name"), "name");
    reading.hasUnifiedMemory = device.boolean("hasUnifiedMemory").value_or(false);
    reading.isLowPower = device.boolean("isLowPower").value_or(false);
    reading.isRemovable = device.boolean("isRemovable").value_or(false);
    reading.recommendedMaxWorkingSetSize =
        device.integer<std::uint64_t>("recommendedMaxWorkingSetSize").value_or(0);
    reading.supportsRaytracing = device.boolean("supportsRaytracing").value_or(false);
    if (const auto *families = device.elements("families")) {
        for (const auto &family : *families) {
            const auto *code = std::get_if<std::int64_t>(&family.value);
            if (code && std::in_range<std::int32_t>(*code))
                reading.families.push_back(static_cast<std::int32_t>(*code));
            else
                device.fail("families", "must hold whole numbers");
        }
    }
    return reading;
}

void writeDevice(json::Writer &writer, const GraphicsDevice &device)
{
    writer.beginObject();
    writer.member("name", std::string_view(device.name));
    writer.member("hasUnifiedMemory", device.hasUnifiedMemory);
    writer.member("isLowPower", device.isLowPower);
    writer.member("isRemovable", device.isRemovable);
    writer.key("recommendedMaxWorkingSetSize");
    writer.integer(device.recommendedMaxWorkingSetSize);
    writer.member("supportsRaytracing", device.supportsRaytracing);
    writer.key("families");
    writer.beginArray();
    for (const auto family : device.families)
        writer.integer(std::int64_t{family});
    writer.endArray();
    writer.endObject();
}

} // namespace

std::unique_ptr<Graphics> readGraphics(const Members &recording)
{
    GraphicsReading reading;
    if (const auto graphics = recording.members("graphics")) {
        for (const auto &device : graphics->list("devices").value_or(std::vector<Members>()))
            reading.devices.push_back(readDevice(device));
        if (const auto place = graphics->integer<std::int64_t>("defaultDevice")) {
            if (*place >= 0 && std::cmp_less(*place, reading.devices.size()))
                reading.defaultDevice = reading.devices[static_cast<std::size_t>(*place)];
            else
                graphics->fail("defaultDevice",
                               "must be the place of a device in \"devices\", counted from 0");
        }
    }
    return std::make_unique<RecordedGraphics>(std::move(reading));
}

void write(json::Writer &writer, const Graphics &graphics)
{
    auto reading = graphics.read();
    writer.key("graphics");
    writer.beginObject();
    if (reading.defaultDevice) {
        auto place = std::ranges::find(reading.devices, *reading.defaultDevice);
        if (place == reading.devices.end())
            place = reading.devices.insert(place, *reading.defaultDevice);
        writer.member("defaultDevice", std::int64_t{place - reading.devices.begin()});
    }
    writer.key("devices");
    writer.beginArray();
    for (const auto &device : reading.devices)
        writeDevice(writer, device);
    writer.endArray();
    writer.endObject();
}

} // namespace quillmark::platform::recorded
