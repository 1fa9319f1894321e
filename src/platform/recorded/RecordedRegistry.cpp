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
    /// Without services: a recording that lacks the registry.
    explicit RecordedRegistry(std::optional<Services> services)
        : m_services(std::move(services))
    {}

    std::vector<PropertyMap> services(std::string_view classOrPath) const override
    {
        if (!m_services)
            return {};
        const auto found = m_services->find(classOrPath);
        return found == m_services->end() ? std::vector<PropertyMap>() : found->second;
    }

    bool isReadable() const override { return m_services.has_value(); }

private:
    std::optional<Services> m_services;
};

/// Every class and path that this program asks for.
constexpr std::string_view registryNames[] = {
    "AGXAccelerator",
    "AppleAPFSVolume",
    "AppleSEPManager",
    "AppleSmartBattery",
    "IODeviceTree:/efi/platform",
    "IODeviceTree:/options",
};

/// Of an entry that is full of what people and networks are called (the firmware's variables hold the names
/// of networks and tokens of accounts, a volume has its name), texts and bytes are kept only where they are
/// asked for. A number or a flag names nobody.
struct KeptProperties
{
    std::string_view classOrPath;
    std::vector<std::string_view> keys;
};

const KeptProperties *keptProperties(std::string_view classOrPath)
{
    static const KeptProperties all[] = {
        {"AppleAPFSVolume", {"Role", "Sealed"}},
        {"AppleSEPManager", {}},
        {"IODeviceTree:/efi/platform", {"apple-coprocessor-version"}},
        {"IODeviceTree:/options", {"94b73556-2197-4702-82a8-3e1337dafbfb:AppleSecureBootPolicy"}},
    };
    const auto *const found = std::ranges::find(all, classOrPath, &KeptProperties::classOrPath);
    return found == std::end(all) ? nullptr : found;
}

PropertyMap recordable(std::string_view classOrPath, const PropertyMap &service)
{
    auto properties = recorded::withoutIdentifiers(service);
    if (const auto *kept = keptProperties(classOrPath)) {
        std::erase_if(properties, [kept](const auto &property) {
            const auto &value = property.second.value;
            const bool isPlain = std::holds_alternative<std::int64_t>(value) ||
                                 std::holds_alternative<bool>(value) || std::holds_alternative<double>(value);
            return !isPlain && std::ranges::find(kept->keys, property.first) == kept->keys.end();
        });
    }
    return properties;
}

bool namesIdentifier(std::string_view key)
{
    std::string lowered(key);
    for (char &c : lowered) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    constexpr std::string_view traits[] = {"serial",  "uuid",         "guid",   "identifier",
                                           "address", "manufacturer", "mfgdata"};
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
    std::optional<Services> services;
    if (const auto registry = recording.members("registry")) {
        services.emplace();
        for (const auto &[name, property] : registry->object()) {
            if (std::holds_alternative<PropertyMap>(property.value))
                (*services)[name] = {std::get<PropertyMap>(property.value)};
            else if (auto several = registry->dictionaries(name))
                (*services)[name] = std::move(*several);
        }
    }
    return std::make_unique<RecordedRegistry>(std::move(services));
}

void write(json::Writer &writer, const Registry &registry)
{
    if (!registry.isReadable())
        return;
    writer.key("registry");
    writer.beginObject();
    for (const auto name : registryNames) {
        const auto services = registry.services(name);
        if (services.empty())
            continue;
        writer.key(name);
        writer.beginArray();
        for (const auto &service : services)
            writeProperties(writer, recordable(name, service));
        writer.endArray();
    }
    writer.endObject();
}

} // namespace quillmark::platform::recorded
