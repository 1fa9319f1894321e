// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <limits>

namespace quillmark::platform::recorded {

namespace {

class RecordedVolumes final : public Volumes
{
public:
    explicit RecordedVolumes(std::optional<StartupVolume> startupVolume)
        : m_startupVolume(std::move(startupVolume))
    {}

    std::optional<StartupVolume> startupVolume() const override { return m_startupVolume; }
    std::optional<std::vector<DiskReading>> disks() const override { return std::nullopt; }
    std::optional<std::vector<VolumeReading>> otherVolumes() const override { return std::nullopt; }

private:
    std::optional<StartupVolume> m_startupVolume;
};

} // namespace

std::unique_ptr<Volumes> readVolumes(const Members &recording)
{
    const auto volume = recording.members("volume");
    if (!volume)
        return std::make_unique<RecordedVolumes>(std::nullopt);
    const auto bytes = [&volume](std::string_view key) {
        return volume->integer(key, 0, std::numeric_limits<std::int64_t>::max());
    };
    return std::make_unique<RecordedVolumes>(
        StartupVolume{.name = volume->text("name").value_or(std::string()),
                      .total = volume->required(bytes("total"), "total"),
                      .available = bytes("available"),
                      .availableForImportantUsage = bytes("availableForImportantUsage"),
                      .fileSystem = volume->text("fileSystem").value_or(std::string()),
                      .supportsFileCloning = volume->boolean("supportsFileCloning"),
                      .supportsCaseSensitiveNames = volume->boolean("supportsCaseSensitiveNames")});
}

void write(json::Writer &writer, const Volumes &volumes, RecordedNames names)
{
    const auto volume = volumes.startupVolume();
    if (!volume)
        return;
    const auto optional = [&writer](std::string_view key, const auto &value) {
        if (value)
            writer.member(key, *value);
    };
    writer.key("volume");
    writer.beginObject();
    if (names == RecordedNames::Keep)
        writer.member("name", std::string_view(volume->name));
    writer.member("total", volume->total);
    optional("available", volume->available);
    optional("availableForImportantUsage", volume->availableForImportantUsage);
    if (!volume->fileSystem.empty())
        writer.member("fileSystem", std::string_view(volume->fileSystem));
    optional("supportsFileCloning", volume->supportsFileCloning);
    optional("supportsCaseSensitiveNames", volume->supportsCaseSensitiveNames);
    writer.endObject();
}

} // namespace quillmark::platform::recorded
