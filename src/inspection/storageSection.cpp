// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::DiskReading;
using platform::StartupVolume;
using platform::VolumeReading;

constexpr std::size_t mostOfAKind = 16;

QString fileSize(std::int64_t bytes, const language::Formats &formats)
{
    return formats.byteCount(bytes, language::ByteCountStyle::File);
}

QString text(const std::optional<std::string> &word)
{
    return QString::fromStdString(word.value_or(std::string()));
}

QString withTags(const QString &name, const QStringList &tags, const language::Formats &formats)
{
    return tags.isEmpty() ? name : u"%1 (%2)"_s.arg(name, formats.list(tags));
}

/// An empty text is one that was not told.
CapabilityItem nameItem(const QString &key, const QString &label, const QString &name)
{
    return fact(key, label, name.isEmpty() ? notReadable() : name);
}

/// Whether so little is left that updates and work suffer. A tenth of a very large disk is plenty.
bool isLow(std::int64_t available, std::int64_t total)
{
    constexpr std::int64_t leastForUpdates = 15'000'000'000;
    constexpr std::int64_t plenty = 100'000'000'000;
    return available < leastForUpdates || (available < plenty && available * 10 < total);
}

CapabilityItem availableSpaceItem(const std::optional<StartupVolume> &volume,
                                  const language::Formats &formats)
{
    CapabilityItem item{.label = Text::tr("Available space"),
                        .value = notReadable(),
                        .key = u"availableSpace"_s,
                        .isVolatile = true};
    if (!volume)
        return item;
    // NSURLVolumeAvailableCapacityForImportantUsageKey, else NSURLVolumeAvailableCapacityKey; statvfs
    const auto capacity = volumeCapacity(*volume);
    const bool isTold = volume->available.has_value() || capacity.available > 0;
    if (!isTold || capacity.available > capacity.total)
        return item;
    const auto size = fileSize(capacity.available, formats);
    const bool isTooLittle = isLow(capacity.available, capacity.total);
    item.value = isTooLittle ? Text::tr("%1 (low)").arg(size) : size;
    item.status = isTooLittle ? CapabilityStatus::Warning : CapabilityStatus::Supported;
    return item;
}

QString fileSystemName(const std::string &word)
{
    if (word == "apfs")
        return u"APFS"_s;
    return word == "hfs" ? u"Mac OS Extended"_s : QString::fromStdString(word);
}

/// What a Mac's start-up volume can do.
QList<CapabilityItem> abilityItems(const std::optional<StartupVolume> &volume)
{
    // NSURLVolumeSupportsFileCloningKey
    const auto label = Text::tr("File cloning");
    const auto cloning = volume ? volume->supportsFileCloning : std::nullopt;
    QList<CapabilityItem> items = {cloning ? capability(u"fileCloning"_s, label, *cloning)
                                           : fact(u"fileCloning"_s, label, notReadable())};
    // NSURLVolumeSupportsCaseSensitiveNamesKey
    const auto cases = volume ? volume->supportsCaseSensitiveNames : std::nullopt;
    items += fact(u"caseSensitiveNames"_s, Text::tr("Case-sensitive names"),
                  !cases ? notReadable() : (*cases ? Text::tr("Yes") : Text::tr("No")));
    return items;
}

QList<CapabilityItem> startupItems(const platform::Machine &machine, const language::Formats &formats)
{
    const auto volume = machine.volumes().startupVolume();
    // NSURLVolumeLocalizedNameKey of /; the label of the root device
    QList<CapabilityItem> items = {nameItem(u"startupVolume"_s, Text::tr("Start-up volume"),
                                            volume ? QString::fromStdString(volume->name) : QString())};
    // NSURLVolumeTotalCapacityKey; statvfs
    items += nameItem(u"capacity"_s, Text::tr("Capacity"),
                      volume && volume->total > 0 ? fileSize(volume->total, formats) : QString());
    items += availableSpaceItem(volume, formats);
    // statfs; /proc/self/mountinfo
    items += nameItem(u"fileSystem"_s, Text::tr("File system"),
                      volume ? fileSystemName(volume->fileSystem) : QString());
    if (isMac(machine))
        items += abilityItems(volume);
    return items;
}

QString diskText(const DiskReading &disk, const language::Formats &formats)
{
    QStringList parts;
    // "Product Name"; device/model
    if (const auto name = text(disk.productName).trimmed(); !name.isEmpty())
        parts += name;
    // "Size"; size
    if (disk.size.value_or(0) > 0)
        parts += fileSize(*disk.size, formats);
    QStringList tags;
    // "Medium Type"; queue/rotational
    if (disk.mediumType == "Solid State")
        tags += Text::tr("SSD");
    else if (disk.mediumType == "Rotational")
        tags += Text::tr("hard disk");
    // "Physical Interconnect Location"; the device's path
    if (disk.interconnectLocation == "Internal")
        tags += Text::tr("internal");
    else if (disk.interconnectLocation == "External")
        tags += Text::tr("external");
    // "Removable"; removable
    if (disk.removable)
        tags += Text::tr("removable");
    return withTags(parts.isEmpty() ? notReadable() : parts.join(u", "_s), tags, formats);
}

/// Only where the system passes on what was deleted does an SSD stay fast. A Mac says nothing where it does
/// not.
CapabilityItem trimItem(const QString &key, const QString &label, const DiskReading &disk, bool onMac)
{
    // "IOStorageFeatures", "Unmap"; queue/discard_max_bytes
    if (!disk.unmap && !onMac)
        return fact(key, label, notReadable());
    const bool isOn = disk.unmap.value_or(false);
    return {.label = label,
            .value = isOn ? Text::tr("On") : Text::tr("Off"),
            .status = isOn ? CapabilityStatus::Supported : CapabilityStatus::Warning,
            .key = key};
}

QList<CapabilityItem> diskItems(const platform::Machine &machine, const language::Formats &formats)
{
    auto disks = machine.volumes().disks().value_or(std::vector<DiskReading>());
    std::erase_if(disks, [](const DiskReading &disk) { return disk.interconnectLocation == "File"; });
    const bool isAlone = disks.size() == 1;
    disks.resize(std::min(disks.size(), mostOfAKind));
    const bool onMac = isMac(machine);
    const bool isVirtual = sysctlFlag(machine, "kern.hv_vmm_present");
    QList<CapabilityItem> items;
    int number = 0;
    for (const auto &disk : disks) {
        const auto key = u"disk.%1"_s.arg(++number);
        items +=
            fact(key, isAlone ? Text::tr("Disk") : Text::tr("Disk %1").arg(number), diskText(disk, formats));
        // "Physical Interconnect"; the device's path
        if (const auto word = text(disk.interconnect); !word.isEmpty()) {
            items += fact(key + u".connection"_s,
                          isAlone ? Text::tr("Connection") : Text::tr("Connection (disk %1)").arg(number),
                          word == u"PCI-Express"_s ? u"PCI Express"_s : word);
        }
        if (disk.mediumType == "Solid State" && disk.interconnectLocation == "Internal" && !isVirtual) {
            items +=
                trimItem(key + u".trim"_s,
                         isAlone ? Text::tr("TRIM") : Text::tr("TRIM (disk %1)").arg(number), disk, onMac);
        }
    }
    return items;
}

QString volumeText(const VolumeReading &volume, const language::Formats &formats)
{
    QStringList tags;
    if (volume.isInternal == false)
        tags += Text::tr("external");
    if (volume.isReadOnly)
        tags += Text::tr("read only");
    const auto name = QString::fromStdString(volume.name);
    return withTags(name.isEmpty() ? Text::tr("Volume") : name, tags, formats);
}

QList<CapabilityItem> volumeItems(const platform::Machine &machine, const language::Formats &formats)
{
    // getfsstat; /proc/self/mountinfo and statvfs
    auto volumes = machine.volumes().otherVolumes().value_or(std::vector<VolumeReading>());
    const bool isAlone = volumes.size() == 1;
    volumes.resize(std::min(volumes.size(), mostOfAKind));
    QList<CapabilityItem> items;
    int number = 0;
    for (const auto &volume : volumes) {
        const auto key = u"volume.%1"_s.arg(++number);
        items += fact(key, isAlone ? Text::tr("Volume") : Text::tr("Volume %1").arg(number),
                      volumeText(volume, formats));
        if (!volume.total || !volume.available || *volume.total <= 0 || *volume.available > *volume.total)
            continue;
        items += CapabilityItem{
            .label = isAlone ? Text::tr("Volume space") : Text::tr("Volume space (volume %1)").arg(number),
            .value = Text::tr("%1 of %2")
                         .arg(fileSize(*volume.available, formats), fileSize(*volume.total, formats)),
            .key = key + u".available"_s,
            .isVolatile = true};
    }
    return items;
}

} // namespace

CapabilitySection storageSection(const platform::Machine &machine, const language::Formats &formats)
{
    return {.title = Text::tr("Storage"),
            .symbol = u"internaldrive"_s,
            .items =
                startupItems(machine, formats) + diskItems(machine, formats) + volumeItems(machine, formats),
            .key = u"storage"_s};
}

} // namespace quillmark::inspection::DeviceProbe
