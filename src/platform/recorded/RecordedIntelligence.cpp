// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <array>
#include <utility>

namespace quillmark::platform::recorded {

namespace {

constexpr std::array<std::string_view, 4> deviceKinds = {"cpu", "gpu", "neuralEngine", "other"};
constexpr std::int64_t lastState = 5;

struct Facts
{
    std::optional<std::int32_t> languageModelState;
    std::optional<std::vector<ComputeDevice>> computeDevices;
    std::optional<std::vector<Accelerator>> accelerators;
    std::optional<std::vector<RenderNode>> renderNodes;
};

class RecordedIntelligence final : public Intelligence
{
public:
    explicit RecordedIntelligence(Facts facts)
        : m_facts(std::move(facts))
    {}

    std::optional<std::int32_t> languageModelState() const override { return m_facts.languageModelState; }
    std::optional<std::vector<ComputeDevice>> computeDevices() const override
    {
        return m_facts.computeDevices;
    }
    std::optional<std::vector<Accelerator>> accelerators() const override { return m_facts.accelerators; }
    std::optional<std::vector<RenderNode>> renderNodes() const override { return m_facts.renderNodes; }

private:
    Facts m_facts;
};

ComputeDevice readComputeDevice(const Members &device)
{
    return {.kind =
                static_cast<ComputeDevice::Kind>(device.required(device.word("kind", deviceKinds), "kind")),
            .totalCoreCount = device.integer<std::int64_t>("totalCoreCount")};
}

Accelerator readAccelerator(const Members &accelerator)
{
    return {.name = accelerator.required(accelerator.text("name"), "name"),
            .driver = accelerator.text("driver")};
}

RenderNode readRenderNode(const Members &node)
{
    return {.name = node.required(node.text("name"), "name"),
            .driver = node.text("driver"),
            .accessible = node.boolean("accessible").value_or(false),
            .runtimeStatus = node.text("runtimeStatus")};
}

/// The list under the key, each element read by `readOne`.
template <typename Element>
std::optional<std::vector<Element>> readList(const Members &recording, std::string_view key,
                                             Element (*readOne)(const Members &))
{
    const auto objects = recording.list(key);
    if (!objects)
        return std::nullopt;
    std::vector<Element> elements;
    for (const auto &object : *objects)
        elements.push_back(readOne(object));
    return elements;
}

void writeElement(json::Writer &writer, const ComputeDevice &device)
{
    writer.member("kind", deviceKinds[static_cast<std::size_t>(device.kind)]);
    if (device.totalCoreCount)
        writer.member("totalCoreCount", *device.totalCoreCount);
}

void writeElement(json::Writer &writer, const Accelerator &accelerator)
{
    writer.member("name", std::string_view(accelerator.name));
    if (accelerator.driver)
        writer.member("driver", std::string_view(*accelerator.driver));
}

void writeElement(json::Writer &writer, const RenderNode &node)
{
    writer.member("name", std::string_view(node.name));
    if (node.driver)
        writer.member("driver", std::string_view(*node.driver));
    writer.member("accessible", node.accessible);
    if (node.runtimeStatus)
        writer.member("runtimeStatus", std::string_view(*node.runtimeStatus));
}

template <typename Element>
void writeList(json::Writer &writer, std::string_view key,
               const std::optional<std::vector<Element>> &elements)
{
    if (!elements)
        return;
    writer.key(key);
    writer.beginArray();
    for (const auto &element : *elements) {
        writer.beginObject();
        writeElement(writer, element);
        writer.endObject();
    }
    writer.endArray();
}

} // namespace

std::unique_ptr<Intelligence> readIntelligence(const Members &recording)
{
    Facts facts;
    if (const auto model = recording.members("languageModel"))
        facts.languageModelState =
            static_cast<std::int32_t>(model->required(model->integer("state", 0, lastState), "state"));
    facts.computeDevices = readList(recording, "computeDevices", readComputeDevice);
    facts.accelerators = readList(recording, "accelerators", readAccelerator);
    facts.renderNodes = readList(recording, "renderNodes", readRenderNode);
    return std::make_unique<RecordedIntelligence>(std::move(facts));
}

void write(json::Writer &writer, const Intelligence &intelligence)
{
    if (const auto state = intelligence.languageModelState()) {
        writer.key("languageModel");
        writer.beginObject();
        writer.member("state", *state);
        writer.endObject();
    }
    writeList(writer, "computeDevices", intelligence.computeDevices());
    writeList(writer, "accelerators", intelligence.accelerators());
    writeList(writer, "renderNodes", intelligence.renderNodes());
}

} // namespace quillmark::platform::recorded
