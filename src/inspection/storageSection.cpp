// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <algorithm>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::DiskReading;
using platform::StartupVolume;
using platform::VolumeReading;

QString fileSize(std::int64_t bytes, const language::Formats &formats)
{
    return formats.byteCount(bytes, language::ByteCountStyle::File);
}

QString text(const std::optional<std::string> &word)
{
    return QString::fromStdString(word.value_or(std::string()));
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

std::optional<Verdict> availableSpaceVerdict(const std::optional<StartupVolume> &volume,
                                             const language::Formats &formats)
{
    if (!volume)
        return std::nullopt;
    // NSURLVolumeAvailableCapacityForImportantUsageKey, else NSURLVolumeAvailableCapacityKey; statvfs
    const auto capacity = volumeCapacity(*volume);
    const bool isTold = volume->available.has_value() || capacity.available > 0;
    if (!isTold || capacity.available > capacity.total)
        return std::nullopt;
    const auto size = fileSize(capacity.available, formats);
    if (isLow(capacity.available, capacity.total))
        //: %1 is the space that is free.
        return Verdict{Text::tr("%1 (low)").arg(size), CapabilityStatus::Warning};
    return Verdict{size, CapabilityStatus::Supported};
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
    return {
        // NSURLVolumeSupportsFileCloningKey
        capability(u"fileCloning"_s, Text::tr("File cloning"),
                   volume ? volume->supportsFileCloning : std::nullopt),
        // NSURLVolumeSupportsCaseSensitiveNamesKey
        fact(u"caseSensitiveNames"_s, Text::tr("Case-sensitive names"),
             yesOrNo(volume ? volume->supportsCaseSensitiveNames : std::nullopt)),
    };
}

QList<CapabilityItem> startupItems(const platform::Machine &machine, bool onMac,
                                   const language::Formats &formats)
{
    const auto volume = machine.volumes().startupVolume();
    // NSURLVolumeLocalizedNameKey of /; the label of the root device
    QList<CapabilityItem> items = {nameItem(u"startupVolume"_s, Text::tr("Start-up volume"),
                                            volume ? QString::fromStdString(volume->name) : QString())};
    // NSURLVolumeTotalCapacityKey; statvfs
    items += nameItem(u"capacity"_s, Text::tr("Capacity"),
                      volume && volume->total > 0 ? fileSize(volume->total, formats) : QString());
    items += passing(
        judged(u"availableSpace"_s, Text::tr("Available space"), availableSpaceVerdict(volume, formats)));
    // statfs; /proc/self/mountinfo
    items += nameItem(u"fileSystem"_s, Text::tr("File system"),
                      volume ? fileSystemName(volume->fileSystem) : QString());
    if (onMac)
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
std::optional<Verdict> trimVerdict(const DiskReading &disk, bool onMac)
{
    // "IOStorageFeatures", "Unmap"; queue/discard_max_bytes
    if (!disk.unmap && !onMac)
        return std::nullopt;
    const bool isOn = disk.unmap.value_or(false);
    return Verdict{onOrOff(isOn), isOn ? CapabilityStatus::Supported : CapabilityStatus::Warning};
}

QList<CapabilityItem> diskItems(const platform::Machine &machine, bool onMac,
                                const language::Formats &formats)
{
    auto disks = machine.volumes().disks().value_or(std::vector<DiskReading>());
    std::erase_if(disks, [](const DiskReading &disk) { return disk.interconnectLocation == "File"; });
    const bool isGuest = isVirtualMachine(machine);
    QList<CapabilityItem> items;
    Numbered place{.isOnly = disks.size() == 1};
    for (const auto &disk : disks) {
        if (place.number > mostOfAKind)
            break;
        const auto key = u"disk.%1"_s.arg(place.number);
        items += fact(key, place.label(Text::tr("Disk"), Text::tr("Disk %1")), diskText(disk, formats));
        // "Physical Interconnect"; the device's path
        if (const auto word = text(disk.interconnect); !word.isEmpty()) {
            items += fact(key + u".connection"_s,
                          place.label(Text::tr("Connection"), Text::tr("Connection (disk %1)")),
                          word == u"PCI-Express"_s ? u"PCI Express"_s : word);
        }
        if (disk.mediumType == "Solid State" && disk.interconnectLocation == "Internal" && !isGuest) {
            items += judged(key + u".trim"_s, place.label(Text::tr("TRIM"), Text::tr("TRIM (disk %1)")),
                            trimVerdict(disk, onMac));
        }
        ++place.number;
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
    const auto volumes = machine.volumes().otherVolumes().value_or(std::vector<VolumeReading>());
    QList<CapabilityItem> items;
    Numbered place{.isOnly = volumes.size() == 1};
    for (const auto &volume : volumes) {
        if (place.number > mostOfAKind)
            break;
        const auto key = u"volume.%1"_s.arg(place.number);
        items +=
            fact(key, place.label(Text::tr("Volume"), Text::tr("Volume %1")), volumeText(volume, formats));
        if (volume.total.value_or(0) > 0 && volume.available && *volume.available <= *volume.total) {
            items += passing(
                fact(key + u".available"_s,
                     place.label(Text::tr("Volume space"), Text::tr("Volume space (volume %1)")),
                     Text::tr("%1 of %2")
                         .arg(fileSize(*volume.available, formats), fileSize(*volume.total, formats))));
        }
        ++place.number;
    }
    return items;
}

} // namespace

CapabilitySection storageSection(const platform::Machine &machine, const language::Formats &formats)
{
    const bool onMac = isMac(machine);
    return sectionOf(u"storage", startupItems(machine, onMac, formats) + diskItems(machine, onMac, formats) +
                                     volumeItems(machine, formats));
}

} // namespace quillmark::inspection::DeviceProbe
