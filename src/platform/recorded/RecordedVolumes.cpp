// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <limits>

namespace quillmark::platform::recorded {

namespace {

class RecordedVolumes final : public Volumes
{
public:
    RecordedVolumes(std::optional<StartupVolume> startupVolume, std::optional<std::vector<DiskReading>> disks,
                    std::optional<std::vector<VolumeReading>> otherVolumes)
        : m_startupVolume(std::move(startupVolume))
        , m_disks(std::move(disks))
        , m_otherVolumes(std::move(otherVolumes))
    {}

    std::optional<StartupVolume> startupVolume() const override { return m_startupVolume; }
    std::optional<std::vector<DiskReading>> disks() const override { return m_disks; }
    std::optional<std::vector<VolumeReading>> otherVolumes() const override { return m_otherVolumes; }

private:
    std::optional<StartupVolume> m_startupVolume;
    std::optional<std::vector<DiskReading>> m_disks;
    std::optional<std::vector<VolumeReading>> m_otherVolumes;
};

std::optional<std::int64_t> bytes(const Members &object, std::string_view key)
{
    return object.integer(key, 0, std::numeric_limits<std::int64_t>::max());
}

StartupVolume readStartupVolume(const Members &volume)
{
    return {.name = volume.text("name").value_or(std::string()),
            .total = volume.required(bytes(volume, "total"), "total"),
            .available = bytes(volume, "available"),
            .availableForImportantUsage = bytes(volume, "availableForImportantUsage"),
            .fileSystem = volume.text("fileSystem").value_or(std::string()),
            .supportsFileCloning = volume.boolean("supportsFileCloning"),
            .supportsCaseSensitiveNames = volume.boolean("supportsCaseSensitiveNames")};
}

DiskReading readDisk(const Members &disk)
{
    return {.productName = disk.text("Product Name"),
            .size = bytes(disk, "Size"),
            .mediumType = disk.text("Medium Type"),
            .interconnect = disk.text("Physical Interconnect"),
            .interconnectLocation = disk.text("Physical Interconnect Location"),
            .removable = disk.boolean("Removable").value_or(false),
            .unmap = disk.boolean("Unmap")};
}

VolumeReading readVolume(const Members &volume)
{
    return {.name = volume.text("name").value_or(std::string()),
            .fileSystem = volume.text("fileSystem").value_or(std::string()),
            .total = bytes(volume, "total"),
            .available = bytes(volume, "available"),
            .isReadOnly = volume.boolean("isReadOnly").value_or(false),
            .isInternal = volume.boolean("isInternal")};
}

template <typename Reading>
std::optional<std::vector<Reading>> readList(const Members &recording, std::string_view key,
                                             Reading (*read)(const Members &))
{
    const auto objects = recording.list(key);
    if (!objects)
        return std::nullopt;
    std::vector<Reading> readings;
    for (const auto &object : *objects)
        readings.push_back(read(object));
    return readings;
}

/// Writes members of one object; what is absent is left out.
struct MemberWriter
{
    json::Writer &writer;

    template <typename T>
    void operator()(std::string_view key, const std::optional<T> &value) const
    {
        if (value)
            writer.member(key, *value);
    }
    void operator()(std::string_view key, const std::string &value) const
    {
        if (!value.empty())
            writer.member(key, std::string_view(value));
    }
};

void writeStartupVolume(json::Writer &writer, const StartupVolume &volume, RecordedNames names)
{
    const MemberWriter member{writer};
    writer.key("volume");
    writer.beginObject();
    if (names == RecordedNames::Keep)
        writer.member("name", std::string_view(volume.name));
    writer.member("total", volume.total);
    member("available", volume.available);
    member("availableForImportantUsage", volume.availableForImportantUsage);
    member("fileSystem", volume.fileSystem);
    member("supportsFileCloning", volume.supportsFileCloning);
    member("supportsCaseSensitiveNames", volume.supportsCaseSensitiveNames);
    writer.endObject();
}

void writeDisk(json::Writer &writer, const DiskReading &disk)
{
    const MemberWriter member{writer};
    writer.beginObject();
    member("Product Name", disk.productName);
    member("Size", disk.size);
    member("Medium Type", disk.mediumType);
    writer.member("Removable", disk.removable);
    member("Physical Interconnect", disk.interconnect);
    member("Physical Interconnect Location", disk.interconnectLocation);
    member("Unmap", disk.unmap);
    writer.endObject();
}

void writeVolume(json::Writer &writer, const VolumeReading &volume, RecordedNames names)
{
    const MemberWriter member{writer};
    writer.beginObject();
    if (names == RecordedNames::Keep)
        member("name", volume.name);
    member("fileSystem", volume.fileSystem);
    member("total", volume.total);
    member("available", volume.available);
    writer.member("isReadOnly", volume.isReadOnly);
    member("isInternal", volume.isInternal);
    writer.endObject();
}

} // namespace

std::unique_ptr<Volumes> readVolumes(const Members &recording)
{
    const auto volume = recording.members("volume");
    return std::make_unique<RecordedVolumes>(
        volume ? std::optional(readStartupVolume(*volume)) : std::nullopt,
        readList(recording, "disks", readDisk), readList(recording, "volumes", readVolume));
}

void write(json::Writer &writer, const Volumes &volumes, RecordedNames names)
{
    if (const auto volume = volumes.startupVolume())
        writeStartupVolume(writer, *volume, names);
    if (const auto disks = volumes.disks()) {
        writer.key("disks");
        writer.beginArray();
        for (const auto &disk : *disks)
            writeDisk(writer, disk);
        writer.endArray();
    }
    if (const auto others = volumes.otherVolumes()) {
        writer.key("volumes");
        writer.beginArray();
        for (const auto &volume : *others)
            writeVolume(writer, volume, names);
        writer.endArray();
    }
}

} // namespace quillmark::platform::recorded
