// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

struct Facts
{
    std::optional<std::vector<VideoEncoder>> videoEncoders;
    std::optional<AuthorizationStatus> video;
    std::optional<AuthorizationStatus> audio;
};

class RecordedMedia final : public Media
{
public:
    explicit RecordedMedia(Facts facts)
        : m_facts(std::move(facts))
    {}

    std::optional<std::vector<VideoEncoder>> videoEncoders() const override { return m_facts.videoEncoders; }
    std::optional<AuthorizationStatus> authorization(CaptureKind kind) const override
    {
        return kind == CaptureKind::Video ? m_facts.video : m_facts.audio;
    }

private:
    Facts m_facts;
};

std::string codecText(std::uint32_t code)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(code >> shift & 0xFF);
    return text;
}

} // namespace

std::unique_ptr<Media> readMedia(const Members &recording)
{
    Facts facts;
    if (const auto encoders = recording.list("videoEncoders")) {
        facts.videoEncoders.emplace();
        for (const auto &encoder : *encoders) {
            facts.videoEncoders->push_back(
                {.codecType = encoder.required(encoder.fourCharacterCode("codecType"), "codecType"),
                 .isHardwareAccelerated = encoder.boolean("isHardwareAccelerated")});
        }
    }
    if (const auto authorization = recording.members("authorization")) {
        const auto status = [&authorization](std::string_view kind) -> std::optional<AuthorizationStatus> {
            const auto number = authorization->integer<std::int32_t>(kind);
            return number ? std::optional(AuthorizationStatus{*number}) : std::nullopt;
        };
        facts.video = status("video");
        facts.audio = status("audio");
    }
    return std::make_unique<RecordedMedia>(std::move(facts));
}

void write(json::Writer &writer, const Media &media)
{
    if (const auto encoders = media.videoEncoders()) {
        writer.key("videoEncoders");
        writer.beginArray();
        for (const auto &encoder : *encoders) {
            writer.beginObject();
            writer.member("codecType", std::string_view(codecText(encoder.codecType)));
            if (encoder.isHardwareAccelerated)
                writer.member("isHardwareAccelerated", *encoder.isHardwareAccelerated);
            writer.endObject();
        }
        writer.endArray();
    }
    const auto video = media.authorization(CaptureKind::Video);
    const auto audio = media.authorization(CaptureKind::Audio);
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

} // namespace quillmark::platform::recorded
