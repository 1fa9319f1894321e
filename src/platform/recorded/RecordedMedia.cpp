// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

struct Facts
{
    std::optional<std::vector<VideoEncoder>> videoEncoders;
};

class RecordedMedia final : public Media
{
public:
    explicit RecordedMedia(Facts facts)
        : m_facts(std::move(facts))
    {}

    std::optional<std::vector<VideoEncoder>> videoEncoders() const override { return m_facts.videoEncoders; }
    std::optional<std::vector<VideoDecoder>> videoDecoders() const override { return std::nullopt; }
    std::optional<ImageTypes> imageTypes() const override { return std::nullopt; }
    std::expected<CommandAnswer, NoAnswer> vainfo() const override
    {
        return std::unexpected(NoAnswer::NotInstalled);
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
}

} // namespace quillmark::platform::recorded
