// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/PropertyJson.h"
#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

class RecordedPower final : public Power
{
public:
    explicit RecordedPower(std::vector<PropertyMap> sources)
        : m_sources(std::move(sources))
    {}

    std::vector<PropertyMap> powerSources() const override { return m_sources; }
    PowerSettings settings() const override { return {}; }
    std::map<std::string, PropertyMap> powerSupplies() const override { return {}; }

private:
    std::vector<PropertyMap> m_sources;
};

} // namespace

std::unique_ptr<Power> readPower(const Members &recording)
{
    return std::make_unique<RecordedPower>(
        recording.dictionaries("powerSources").value_or(std::vector<PropertyMap>()));
}

void write(json::Writer &writer, const Power &power)
{
    writer.key("powerSources");
    writer.beginArray();
    for (const auto &source : power.powerSources())
        writeProperties(writer, withoutIdentifiers(source));
    writer.endArray();
}

} // namespace quillmark::platform::recorded
