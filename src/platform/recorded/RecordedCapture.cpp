// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <cmath>
#include <utility>

namespace quillmark::platform::recorded {

namespace {

struct Facts
{
    std::optional<AuthorizationStatus> video;
    std::optional<AuthorizationStatus> audio;
    std::optional<std::vector<CameraReading>> cameras;
    std::optional<std::vector<AudioDevice>> audioDevices;
    std::optional<AudioDefaults> audioDefaults;
    std::optional<std::vector<SoundCard>> soundCards;
};

class RecordedCapture final : public Capture
{
public:
    explicit RecordedCapture(Facts facts)
        : m_facts(std::move(facts))
    {}

    std::optional<AuthorizationStatus> authorization(CaptureKind kind) const override
    {
        return kind == CaptureKind::Video ? m_facts.video : m_facts.audio;
    }
    std::optional<std::vector<CameraReading>> cameras() const override { return m_facts.cameras; }
    std::optional<std::vector<AudioDevice>> audioDevices() const override { return m_facts.audioDevices; }
    std::optional<AudioDefaults> audioDefaults() const override { return m_facts.audioDefaults; }
    std::optional<std::vector<SoundCard>> soundCards() const override { return m_facts.soundCards; }

private:
    Facts m_facts;
};

std::optional<AuthorizationStatus> readStatus(const Members &authorization, std::string_view kind)
{
    const auto number = authorization.integer<std::int32_t>(kind);
    return number ? std::optional(AuthorizationStatus{*number}) : std::nullopt;
}

/// A list of objects, each read by `read`; absent when the member is.
template <typename Read>
auto readList(const Members &object, std::string_view key, Read read)
{
    std::optional<std::vector<decltype(read(object))>> found;
    if (const auto list = object.list(key)) {
        found.emplace();
        for (const auto &element : *list)
            found->push_back(read(element));
    }
    return found;
}

CameraFormat readFormat(const Members &format)
{
    return {.width = format.required(format.integer<std::int32_t>("width"), "width"),
            .height = format.required(format.integer<std::int32_t>("height"), "height"),
            .maxFrameRate = format.number("maxFrameRate").value_or(0),
            .isCenterStageSupported = format.boolean("isCenterStageSupported")};
}

CameraReading readCamera(const Members &camera)
{
    return {.localizedName = camera.required(camera.text("localizedName"), "localizedName"),
            .deviceType = camera.text("deviceType"),
            .formats = readList(camera, "formats", readFormat).value_or(std::vector<CameraFormat>())};
}

std::optional<double> numberOf(const PropertyValue &property)
{
    if (const auto *whole = std::get_if<std::int64_t>(&property.value))
        return static_cast<double>(*whole);
    const auto *number = std::get_if<double>(&property.value);
    return number ? std::optional(*number) : std::nullopt;
}

std::vector<std::pair<double, double>> readRanges(const Members &object, std::string_view key)
{
    std::vector<std::pair<double, double>> ranges;
    const auto *elements = object.elements(key);
    for (const auto &element : elements ? *elements : PropertyList()) {
        const auto *pair = std::get_if<PropertyList>(&element.value);
        const bool isPair = pair && pair->size() == 2;
        const auto least = isPair ? numberOf(pair->front()) : std::nullopt;
        const auto most = isPair ? numberOf(pair->back()) : std::nullopt;
        if (least && most)
            ranges.emplace_back(*least, *most);
        else
            object.fail(key, "must hold pairs of numbers");
    }
    return ranges;
}

AudioDevice readAudioDevice(const Members &device)
{
    return {.id = device.required(device.integer<std::uint32_t>("id"), "id"),
            .name = device.text("name"),
            .transport = device.fourCharacterCode("transport").value_or(0),
            .inputChannels = device.integer<std::uint32_t>("inputChannels").value_or(0),
            .outputChannels = device.integer<std::uint32_t>("outputChannels").value_or(0),
            .nominalSampleRate = device.number("nominalSampleRate"),
            .availableSampleRates = readRanges(device, "availableSampleRates")};
}

SoundCard readSoundCard(const Members &card)
{
    return {.name = card.required(card.text("name"), "name"),
            .playback = card.boolean("playback").value_or(false),
            .capture = card.boolean("capture").value_or(false)};
}

template <typename List, typename Write>
void writeList(json::Writer &writer, std::string_view key, const std::optional<List> &list,
               Write writeMembers)
{
    if (!list)
        return;
    writer.key(key);
    writer.beginArray();
    for (const auto &element : *list) {
        writer.beginObject();
        writeMembers(writer, element);
        writer.endObject();
    }
    writer.endArray();
}

void writeFormat(json::Writer &writer, const CameraFormat &format)
{
    writer.member("width", format.width);
    writer.member("height", format.height);
    writer.member("maxFrameRate", format.maxFrameRate);
    if (format.isCenterStageSupported)
        writer.member("isCenterStageSupported", *format.isCenterStageSupported);
}

void writeCamera(json::Writer &writer, const CameraReading &camera)
{
    writer.member("localizedName", std::string_view(camera.localizedName));
    if (camera.deviceType)
        writer.member("deviceType", std::string_view(*camera.deviceType));
    if (!camera.formats.empty())
        writeList(writer, "formats", std::optional(camera.formats), writeFormat);
}

/// Whether people give such devices their names: those that they put together themselves, and who knows
/// which.
bool isNamedByPeople(std::uint32_t transport)
{
    const auto code = textFromCode(transport);
    return !code || *code == "grup" || *code == "fgrp";
}

void writeAudioDevice(json::Writer &writer, const AudioDevice &device, RecordedNames names)
{
    writer.member("id", std::int64_t{device.id});
    const bool isKept = names == RecordedNames::Keep || !isNamedByPeople(device.transport);
    if (device.name && isKept && !personalDevice(device.transport))
        writer.member("name", std::string_view(*device.name));
    if (const auto code = textFromCode(device.transport))
        writer.member("transport", std::string_view(*code));
    writer.member("inputChannels", std::int64_t{device.inputChannels});
    writer.member("outputChannels", std::int64_t{device.outputChannels});
    if (device.nominalSampleRate)
        writer.member("nominalSampleRate", *device.nominalSampleRate);
    writer.key("availableSampleRates");
    writer.beginArray();
    for (const auto &[least, most] : device.availableSampleRates) {
        if (!std::isfinite(least) || !std::isfinite(most))
            continue;
        writer.beginArray();
        writer.number(least);
        writer.number(most);
        writer.endArray();
    }
    writer.endArray();
}

void writeSoundCard(json::Writer &writer, const SoundCard &card)
{
    writer.member("name", std::string_view(card.name));
    writer.member("playback", card.playback);
    writer.member("capture", card.capture);
}

void writeAuthorization(json::Writer &writer, std::optional<AuthorizationStatus> video,
                        std::optional<AuthorizationStatus> audio)
{
    if (!video && !audio)
        return;
    writer.key("authorization");
    writer.beginObject();
    if (video)
        writer.member("video", std::to_underlying(*video));
    if (audio)
        writer.member("audio", std::to_underlying(*audio));
    writer.endObject();
}

} // namespace

std::unique_ptr<Capture> readCapture(const Members &recording)
{
    Facts facts;
    if (const auto authorization = recording.members("authorization")) {
        facts.video = readStatus(*authorization, "video");
        facts.audio = readStatus(*authorization, "audio");
    }
    facts.cameras = readList(recording, "cameras", readCamera);
    facts.audioDevices = readList(recording, "audioDevices", readAudioDevice);
    if (const auto defaults = recording.members("audioDefaults")) {
        facts.audioDefaults = {
            .input = defaults->required(defaults->integer<std::uint32_t>("input"), "input"),
            .output = defaults->required(defaults->integer<std::uint32_t>("output"), "output")};
    }
    facts.soundCards = readList(recording, "soundCards", readSoundCard);
    return std::make_unique<RecordedCapture>(std::move(facts));
}

void write(json::Writer &writer, const Capture &capture, RecordedNames names)
{
    auto cameras = capture.cameras();
    if (cameras) {
        std::erase_if(*cameras,
                      [](const CameraReading &camera) { return placeOf(camera) == CameraPlace::Borrowed; });
    }
    writeList(writer, "cameras", cameras, writeCamera);
    writeAuthorization(writer, capture.authorization(CaptureKind::Video),
                       capture.authorization(CaptureKind::Audio));
    writeList(writer, "audioDevices", capture.audioDevices(),
              [names](json::Writer &to, const AudioDevice &device) { writeAudioDevice(to, device, names); });
    if (const auto defaults = capture.audioDefaults()) {
        writer.key("audioDefaults");
        writer.beginObject();
        writer.member("input", std::int64_t{defaults->input});
        writer.member("output", std::int64_t{defaults->output});
        writer.endObject();
    }
    writeList(writer, "soundCards", capture.soundCards(), writeSoundCard);
}

} // namespace quillmark::platform::recorded
