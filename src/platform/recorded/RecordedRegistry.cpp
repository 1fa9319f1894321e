// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/PropertyJson.h"
#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <map>
#include <string>

namespace quillmark::platform::recorded {

namespace {

using Services = std::map<std::string, std::vector<PropertyMap>, std::less<>>;

class RecordedRegistry final : public Registry
{
public:
    explicit RecordedRegistry(Services services)
        : m_services(std::move(services))
    {}

    std::vector<PropertyMap> services(std::string_view classOrPath) const override
    {
        const auto found = m_services.find(classOrPath);
        return found == m_services.end() ? std::vector<PropertyMap>() : found->second;
    }

private:
    Services m_services;
};

/// Every class and path that this program asks for.
constexpr std::string_view registryNames[] = {"AppleSmartBattery"};

bool namesIdentifier(std::string_view key)
{
    std::string lowered(key);
    for (char &c : lowered) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    constexpr std::string_view traits[] = {"serial",      "uuid",        "guid",         "macaddress",
                                           "mac address", "mac-address", "manufacturer", "mfgdata"};
    return std::ranges::any_of(
        traits, [&](std::string_view trait) { return lowered.find(trait) != std::string::npos; });
}

PropertyValue withoutIdentifiers(const PropertyValue &property)
{
    if (const auto *object = std::get_if<PropertyMap>(&property.value))
        return {recorded::withoutIdentifiers(*object)};
    const auto *array = std::get_if<PropertyList>(&property.value);
    if (!array)
        return property;
    PropertyList elements;
    for (const auto &element : *array)
        elements.push_back(withoutIdentifiers(element));
    return {std::move(elements)};
}

} // namespace

PropertyMap withoutIdentifiers(const PropertyMap &properties)
{
    PropertyMap kept;
    for (const auto &[key, property] : properties) {
        if (!namesIdentifier(key))
            kept.emplace(key, withoutIdentifiers(property));
    }
    return kept;
}

std::unique_ptr<Registry> readRegistry(const Members &recording)
{
    Services services;
    if (const auto registry = recording.members("registry")) {
        for (const auto &[name, property] : registry->object()) {
            if (std::holds_alternative<PropertyMap>(property.value))
                services[name] = {std::get<PropertyMap>(property.value)};
            else if (auto several = registry->dictionaries(name))
                services[name] = std::move(*several);
        }
    }
    return std::make_unique<RecordedRegistry>(std::move(services));
}

void write(json::Writer &writer, const Registry &registry)
{
    writer.key("registry");
    writer.beginObject();
    for (const auto name : registryNames) {
        const auto services = registry.services(name);
        if (services.empty())
            continue;
        writer.key(name);
        writer.beginArray();
        for (const auto &service : services)
            writeProperties(writer, withoutIdentifiers(service));
        writer.endArray();
    }
    writer.endObject();
}

} // namespace quillmark::platform::recorded
