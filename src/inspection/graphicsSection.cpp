// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

// MTLGPUFamily
constexpr int metal3Family = 5001;
constexpr int metal4Family = 5002;

constexpr int firstSystemWithMetal4 = 26;
constexpr int firstFamilyWithHardwareRayTracing = 9;

QString nameWithTags(const platform::GraphicsDevice &device, const language::Formats &formats)
{
    QStringList tags;
    if (device.hasUnifiedMemory)
        tags += Text::tr("unified memory");
    if (device.isLowPower)
        tags += Text::tr("low power");
    if (device.isRemovable)
        tags += Text::tr("external eGPU");
    return withTags(QString::fromStdString(device.name), tags, formats);
}

QList<CapabilityItem> deviceItems(const std::vector<platform::GraphicsDevice> &devices,
                                  const language::Formats &formats)
{
    QList<CapabilityItem> items;
    Numbered place{.isOnly = devices.size() == 1};
    for (const auto &device : devices) {
        items += fact(u"gpu.%1"_s.arg(place.number), place.label(Text::tr("GPU"), Text::tr("GPU %1")),
                      nameWithTags(device, formats));
        ++place.number;
    }
    return items;
}

/// An older system is told apart before the device is asked, whatever the device could do.
CapabilityItem metal4Item(const platform::Machine &machine, const platform::GraphicsDevice &device)
{
    if (machine.system().operatingSystem().major >= firstSystemWithMetal4)
        return capability(u"metal4"_s, u"Metal 4"_s, device.supportsFamily(metal4Family));
    return judged(u"metal4"_s, u"Metal 4"_s,
                  Verdict{Text::tr("Requires macOS 26"), CapabilityStatus::Unsupported});
}

/// What the default device answers.
QList<CapabilityItem> metalItems(const platform::Machine &machine, const platform::GraphicsDevice &device,
                                 const language::Formats &formats)
{
    const int appleFamily = highestAppleFamily(device).value_or(0);
    const auto workingSet = static_cast<std::int64_t>(device.recommendedMaxWorkingSetSize);
    QList<CapabilityItem> items = {fact(u"recommendedGPUMemory"_s, Text::tr("Recommended GPU memory"),
                                        formats.byteCount(workingSet, language::ByteCountStyle::Memory))};
    if (appleFamily >= 1)
        items += fact(u"appleGPUFamily"_s, Text::tr("Apple GPU family"), u"Apple %1"_s.arg(appleFamily));
    items += capability(u"metal3"_s, u"Metal 3"_s, device.supportsFamily(metal3Family));
    items += metal4Item(machine, device);
    // What Metal offers, in software if need be, and what the silicon has are two questions.
    items += capability(u"rayTracing"_s, Text::tr("Ray tracing"), device.supportsRaytracing);
    items += capability(u"hardwareRayTracing"_s, Text::tr("Hardware ray tracing"),
                        appleFamily >= firstFamilyWithHardwareRayTracing);
    return items;
}

} // namespace

CapabilitySection graphicsSection(const platform::Machine &machine, const language::Formats &formats)
{
    const auto graphics = machine.graphics().read();
    auto section = sectionOf(u"graphics", {});
    if (graphics.defaultDevice) {
        section.items = deviceItems(graphics.devices, formats);
        section.items += metalItems(machine, *graphics.defaultDevice, formats);
    } else {
        section.items = {capability(u"metal"_s, u"Metal"_s, false)};
    }
    return section;
}

} // namespace quillmark::inspection::DeviceProbe
