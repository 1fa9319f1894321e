// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/PropertyJson.h"
#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

using Supplies = std::map<std::string, PropertyMap>;

class RecordedPower final : public Power
{
public:
    RecordedPower(std::optional<std::vector<PropertyMap>> sources, PowerSettings settings,
                  std::optional<Supplies> supplies, std::optional<PropertyMap> report)
        : m_sources(std::move(sources))
        , m_settings(std::move(settings))
        , m_supplies(std::move(supplies))
        , m_report(std::move(report))
    {}

    std::optional<std::vector<PropertyMap>> powerSources() const override { return m_sources; }
    PowerSettings settings() const override { return m_settings; }
    std::optional<Supplies> powerSupplies() const override { return m_supplies; }
    std::optional<PropertyMap> powerReport() const override { return m_report; }

private:
    std::optional<std::vector<PropertyMap>> m_sources;
    PowerSettings m_settings;
    std::optional<Supplies> m_supplies;
    std::optional<PropertyMap> m_report;
};

PowerSettings readSettings(const Members &recording)
{
    const auto settings = recording.members("powerSettings");
    if (!settings)
        return {};
    const auto adapter = settings->members("externalAdapter");
    return {.providingSource = settings->text("providingSource"),
            .lowPowerModeEnabled = settings->boolean("lowPowerModeEnabled"),
            .externalAdapter = adapter ? std::optional(adapter->object()) : std::nullopt,
            .platformProfile = settings->text("platformProfile")};
}

std::optional<Supplies> readSupplies(const Members &recording)
{
    const auto supplies = recording.members("powerSupplies");
    if (!supplies)
        return std::nullopt;
    Supplies read;
    for (const auto &[name, supply] : supplies->object()) {
        const auto properties = supplies->members(name);
        if (!properties)
            continue;
        auto &kept = read[name] = properties->object();
        std::erase_if(kept, [](const auto &property) { return identifiesSupply(property.first); });
    }
    return read;
}

void writeSettings(json::Writer &writer, const PowerSettings &settings)
{
    if (settings == PowerSettings())
        return;
    writer.key("powerSettings");
    writer.beginObject();
    if (settings.providingSource)
        writer.member("providingSource", std::string_view(*settings.providingSource));
    if (settings.lowPowerModeEnabled)
        writer.member("lowPowerModeEnabled", *settings.lowPowerModeEnabled);
    if (settings.externalAdapter) {
        writer.key("externalAdapter");
        writeProperties(writer, withoutIdentifiers(*settings.externalAdapter));
    }
    if (settings.platformProfile)
        writer.member("platformProfile", std::string_view(*settings.platformProfile));
    writer.endObject();
}

} // namespace

std::unique_ptr<Power> readPower(const Members &recording)
{
    const auto report = recording.members("powerReport");
    return std::make_unique<RecordedPower>(recording.dictionaries("powerSources"), readSettings(recording),
                                           readSupplies(recording),
                                           report ? std::optional(report->object()) : std::nullopt);
}

void write(json::Writer &writer, const Power &power)
{
    if (const auto sources = power.powerSources()) {
        writer.key("powerSources");
        writer.beginArray();
        for (const auto &source : *sources)
            writeProperties(writer, withoutIdentifiers(source));
        writer.endArray();
    }
    writeSettings(writer, power.settings());
    if (const auto supplies = power.powerSupplies()) {
        writer.key("powerSupplies");
        writer.beginObject();
        for (const auto &[name, supply] : *supplies) {
            writer.key(name);
            writeProperties(writer, withoutIdentifiers(supply));
        }
        writer.endObject();
    }
    if (const auto report = power.powerReport()) {
        writer.key("powerReport");
        writeProperties(writer, withoutIdentifiers(*report));
    }
}

} // namespace quillmark::platform::recorded
