// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmark::platform::recorded {

namespace {

struct Facts
{
    std::optional<std::vector<VideoEncoder>> videoEncoders;
    std::optional<std::vector<VideoDecoder>> videoDecoders;
    std::optional<ImageTypes> imageTypes;
    std::expected<CommandAnswer, NoAnswer> vainfo = std::unexpected(NoAnswer::Failed);
};

class RecordedMedia final : public Media
{
public:
    explicit RecordedMedia(Facts facts)
        : m_facts(std::move(facts))
    {}

    std::optional<std::vector<VideoEncoder>> videoEncoders() const override { return m_facts.videoEncoders; }
    std::optional<std::vector<VideoDecoder>> videoDecoders() const override { return m_facts.videoDecoders; }
    std::optional<ImageTypes> imageTypes() const override { return m_facts.imageTypes; }
    std::expected<CommandAnswer, NoAnswer> vainfo() const override { return m_facts.vainfo; }

private:
    Facts m_facts;
};

/// In the order of NoAnswer. One that failed is left out, as any member that could not be read.
constexpr std::array<std::string_view, 3> noAnswerWords = {"noDevice", "notInstalled", "asleep"};

std::optional<std::uint32_t> codeFromText(std::string_view text)
{
    if (text.size() != 4)
        return std::nullopt;
    std::uint32_t code = 0;
    for (const char c : text)
        code = code << 8 | static_cast<unsigned char>(c);
    return code;
}

std::vector<VideoEncoder> readEncoders(const std::vector<Members> &list)
{
    std::vector<VideoEncoder> encoders;
    encoders.reserve(list.size());
    for (const auto &encoder : list) {
        encoders.push_back(
            {.codecType = encoder.required(encoder.fourCharacterCode("codecType"), "codecType"),
             .isHardwareAccelerated = encoder.boolean("isHardwareAccelerated")});
    }
    return encoders;
}

std::vector<VideoDecoder> readDecoders(const Members &object)
{
    std::vector<VideoDecoder> decoders;
    for (const auto &[code, property] : object.object()) {
        const auto number = codeFromText(code);
        const auto isSupported = object.boolean(code);
        if (!number)
            object.fail(code, "must be named by a code of four characters");
        else if (isSupported)
            decoders.push_back({.codecType = *number, .isHardwareSupported = *isSupported});
    }
    return decoders;
}

std::vector<std::string> readTypes(const Members &types, std::string_view key)
{
    std::vector<std::string> identifiers;
    const auto *elements = types.elements(key);
    if (!elements) {
        types.fail(key, "is missing");
        return identifiers;
    }
    for (const auto &element : *elements) {
        if (const auto *identifier = std::get_if<std::string>(&element.value))
            identifiers.push_back(*identifier);
        else
            types.fail(key, "must hold texts");
    }
    return identifiers;
}

std::expected<CommandAnswer, NoAnswer> readVainfo(const Members &answer)
{
    if (const auto reason = answer.word("noAnswer", noAnswerWords))
        return std::unexpected(NoAnswer(*reason));
    return CommandAnswer{.exitStatus = answer.required(answer.integer<int>("exitStatus"), "exitStatus"),
                         .output = answer.text("output").value_or(std::string())};
}

void writeTypes(json::Writer &writer, std::string_view key, const std::vector<std::string> &types)
{
    writer.key(key);
    writer.beginArray();
    for (const auto &type : types)
        writer.string(type);
    writer.endArray();
}

void writeEncoder(json::Writer &writer, const VideoEncoder &encoder)
{
    const auto code = textFromCode(encoder.codecType);
    if (!code)
        return;
    writer.beginObject();
    writer.member("codecType", std::string_view(*code));
    if (encoder.isHardwareAccelerated)
        writer.member("isHardwareAccelerated", *encoder.isHardwareAccelerated);
    writer.endObject();
}

void writeVainfo(json::Writer &writer, const std::expected<CommandAnswer, NoAnswer> &answer)
{
    if (!answer && answer.error() == NoAnswer::Failed)
        return;
    writer.key("vainfo");
    writer.beginObject();
    if (answer) {
        writer.member("exitStatus", answer->exitStatus);
        writer.member("output", std::string_view(answer->output));
    } else {
        writer.member("noAnswer", noAnswerWords.at(static_cast<std::size_t>(answer.error())));
    }
    writer.endObject();
}

} // namespace

std::optional<std::string> textFromCode(std::uint32_t code)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(code >> shift & 0xFF);
    const bool isPlain = std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
    return isPlain ? std::optional(text) : std::nullopt;
}

std::unique_ptr<Media> readMedia(const Members &recording)
{
    Facts facts;
    if (const auto encoders = recording.list("videoEncoders"))
        facts.videoEncoders = readEncoders(*encoders);
    if (const auto decoders = recording.members("videoDecoders"))
        facts.videoDecoders = readDecoders(*decoders);
    if (const auto types = recording.members("imageTypes"))
        facts.imageTypes = {.readable = readTypes(*types, "readable"),
                            .writable = readTypes(*types, "writable")};
    if (const auto answer = recording.members("vainfo"))
        facts.vainfo = readVainfo(*answer);
    return std::make_unique<RecordedMedia>(std::move(facts));
}

void write(json::Writer &writer, const Media &media)
{
    if (const auto encoders = media.videoEncoders()) {
        writer.key("videoEncoders");
        writer.beginArray();
        for (const auto &encoder : *encoders)
            writeEncoder(writer, encoder);
        writer.endArray();
    }
    if (const auto decoders = media.videoDecoders()) {
        writer.key("videoDecoders");
        writer.beginObject();
        for (const auto &decoder : *decoders) {
            if (const auto code = textFromCode(decoder.codecType))
                writer.member(*code, decoder.isHardwareSupported);
        }
        writer.endObject();
    }
    if (const auto types = media.imageTypes()) {
        writer.key("imageTypes");
        writer.beginObject();
        writeTypes(writer, "readable", types->readable);
        writeTypes(writer, "writable", types->writable);
        writer.endObject();
    }
    writeVainfo(writer, media.vainfo());
}

} // namespace quillmark::platform::recorded
