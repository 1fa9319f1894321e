// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

#include <algorithm>
#include <iterator>

namespace quillmark::inspection {

namespace {

struct Heading
{
    QStringView key;
    const char *title;
    QStringView symbol;
};

/// In the order of the inspection.
constexpr Heading headings[] = {
    {u"system", QT_TRANSLATE_NOOP("Inspection", "System"), u"info.circle"},
    {u"processor", QT_TRANSLATE_NOOP("Inspection", "Processor & Memory"), u"cpu"},
    {u"graphics", QT_TRANSLATE_NOOP("Inspection", "Graphics & Metal"), u"square.stack.3d.up"},
    {u"intelligence", QT_TRANSLATE_NOOP("Inspection", "Artificial Intelligence"), u"sparkles"},
    {u"displays", QT_TRANSLATE_NOOP("Inspection", "Displays"), u"display"},
    {u"media", QT_TRANSLATE_NOOP("Inspection", "Media"), u"film"},
    {u"cameraAudio", QT_TRANSLATE_NOOP("Inspection", "Camera & Audio"), u"camera"},
    {u"storage", QT_TRANSLATE_NOOP("Inspection", "Storage"), u"internaldrive"},
    {u"power", QT_TRANSLATE_NOOP("Inspection", "Power"), u"bolt"},
    {u"network", QT_TRANSLATE_NOOP("Inspection", "Network"), u"network"},
    {u"security", QT_TRANSLATE_NOOP("Inspection", "Security"), u"lock.shield"},
};

} // namespace

CapabilitySection sectionOf(QStringView key, QList<CapabilityItem> items)
{
    const auto *heading = std::ranges::find(headings, key, &Heading::key);
    Q_ASSERT(heading != std::end(headings));
    return {.title = Text::tr(heading->title),
            .symbol = heading->symbol.toString(),
            .items = std::move(items),
            .key = key.toString()};
}

namespace DeviceProbe {

QList<CapabilitySection> sections(const platform::Machine &machine, const language::Formats &formats,
                                  const std::optional<platform::NetworkPath> &networkPath)
{
    return {
        systemSection(machine, formats),      processorSection(machine, formats),
        graphicsSection(machine, formats),    intelligenceSection(machine, formats),
        displaysSection(machine, formats),    mediaSection(machine, formats),
        cameraAudioSection(machine, formats), storageSection(machine, formats),
        powerSection(machine, formats),       networkSection(machine, formats, networkPath),
        securitySection(machine, formats),
    };
}

QList<CapabilitySection> emptySections()
{
    QList<CapabilitySection> result;
    for (const auto &heading : headings)
        result += sectionOf(heading.key, {});
    return result;
}

QStringList sectionKeys()
{
    QStringList keys;
    for (const auto &heading : headings)
        keys += heading.key.toString();
    return keys;
}

} // namespace DeviceProbe

} // namespace quillmark::inspection
