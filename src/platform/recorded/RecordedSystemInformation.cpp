// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <array>
#include <limits>
#include <utility>

namespace quillmark::platform::recorded {

namespace {

constexpr std::array<std::string_view, 3> instructionSets = {"arm64", "x86_64", "other"};

struct Facts
{
    OperatingSystem operatingSystem;
    SystemWords words;
    std::optional<InstructionSet> instructionSet;
    std::optional<std::string> hostName;
    std::int64_t physicalMemory = 0;
    std::optional<double> uptime;
    std::int32_t thermalState = 0;
};

class RecordedSystemInformation final : public SystemInformation
{
public:
    explicit RecordedSystemInformation(Facts facts)
        : m_facts(std::move(facts))
    {}

    OperatingSystem operatingSystem() const override { return m_facts.operatingSystem; }
    SystemWords words() const override { return m_facts.words; }
    std::optional<InstructionSet> instructionSet() const override { return m_facts.instructionSet; }
    std::optional<std::string> hostName() const override { return m_facts.hostName; }
    std::int64_t physicalMemory() const override { return m_facts.physicalMemory; }
    std::optional<double> uptime() const override { return m_facts.uptime; }
    std::int32_t thermalState() const override { return m_facts.thermalState; }

private:
    Facts m_facts;
};

} // namespace

std::unique_ptr<SystemInformation> readSystemInformation(const Members &recording)
{
    Facts facts;
    const auto version = recording.members("operatingSystem");
    if (!version) {
        recording.fail("operatingSystem", "is missing");
    } else {
        facts.operatingSystem = {
            .name = version->required(version->text("name"), "name"),
            .major = version->required(version->integer<std::int32_t>("major"), "major"),
            .minor = version->integer<std::int32_t>("minor").value_or(0),
            .patch = version->integer<std::int32_t>("patch").value_or(0),
        };
    }
    if (const auto words = recording.members("words")) {
        facts.words = {.operatingSystem = words->text("operatingSystem"),
                       .processor = words->text("processor"),
                       .architecture = words->text("architecture")};
    }
    if (const auto place = recording.word("instructionSet", instructionSets))
        facts.instructionSet = static_cast<InstructionSet>(*place);
    facts.hostName = recording.text("hostName");
    facts.physicalMemory =
        recording.integer("physicalMemory", 0, std::numeric_limits<std::int64_t>::max()).value_or(0);
    facts.uptime = recording.number("systemUptime");
    facts.thermalState = recording.integer<std::int32_t>("thermalState").value_or(0);
    return std::make_unique<RecordedSystemInformation>(std::move(facts));
}

void write(json::Writer &writer, const SystemInformation &system, RecordedNames names)
{
    const auto version = system.operatingSystem();
    writer.key("operatingSystem");
    writer.beginObject();
    writer.member("name", std::string_view(version.name));
    writer.member("major", version.major);
    writer.member("minor", version.minor);
    writer.member("patch", version.patch);
    writer.endObject();

    const auto optionalText = [&writer](std::string_view key, const std::optional<std::string> &text) {
        if (text)
            writer.member(key, std::string_view(*text));
    };
    if (const auto words = system.words(); words != SystemWords()) {
        writer.key("words");
        writer.beginObject();
        optionalText("operatingSystem", words.operatingSystem);
        optionalText("processor", words.processor);
        optionalText("architecture", words.architecture);
        writer.endObject();
    }
    if (const auto set = system.instructionSet())
        writer.member("instructionSet", instructionSets[static_cast<std::size_t>(*set)]);
    if (names == RecordedNames::Keep)
        optionalText("hostName", system.hostName());
    writer.member("physicalMemory", system.physicalMemory());
    if (const auto uptime = system.uptime())
        writer.member("systemUptime", *uptime);
    writer.member("thermalState", system.thermalState());
}

} // namespace quillmark::platform::recorded
