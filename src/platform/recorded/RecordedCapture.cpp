// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <utility>

namespace quillmark::platform::recorded {

namespace {

struct Facts
{
    std::optional<AuthorizationStatus> video;
    std::optional<AuthorizationStatus> audio;
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
    std::optional<std::vector<CameraReading>> cameras() const override { return std::nullopt; }
    std::optional<std::vector<AudioDevice>> audioDevices() const override { return std::nullopt; }
    std::optional<AudioDefaults> audioDefaults() const override { return std::nullopt; }
    std::optional<std::vector<SoundCard>> soundCards() const override { return std::nullopt; }

private:
    Facts m_facts;
};

} // namespace

std::unique_ptr<Capture> readCapture(const Members &recording)
{
    Facts facts;
    if (const auto authorization = recording.members("authorization")) {
        const auto status = [&authorization](std::string_view kind) -> std::optional<AuthorizationStatus> {
            const auto number = authorization->integer<std::int32_t>(kind);
            return number ? std::optional(AuthorizationStatus{*number}) : std::nullopt;
        };
        facts.video = status("video");
        facts.audio = status("audio");
    }
    return std::make_unique<RecordedCapture>(std::move(facts));
}

void write(json::Writer &writer, const Capture &capture)
{
    const auto video = capture.authorization(CaptureKind::Video);
    const auto audio = capture.authorization(CaptureKind::Audio);
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
