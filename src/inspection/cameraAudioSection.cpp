// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/audioItems.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using platform::CameraFormat;
using platform::CameraPlace;
using platform::CameraReading;

/// Without those that are borrowed, and no more than are shown.
std::vector<CameraReading> ownCameras(std::vector<CameraReading> cameras)
{
    std::erase_if(cameras,
                  [](const CameraReading &camera) { return placeOf(camera) == CameraPlace::Borrowed; });
    if (cameras.size() > mostOfAKind)
        cameras.resize(mostOfAKind);
    return cameras;
}

/// A thing that is there: supported, once its name is known.
CapabilityItem namedItem(const QString &key, const QString &label, const std::string &name,
                         const QStringList &tags, const language::Formats &formats)
{
    if (name.empty())
        return fact(key, label, notReadable());
    return judged(
        key, label,
        Verdict{withTags(QString::fromStdString(name), tags, formats), CapabilityStatus::Supported});
}

CapabilityItem cameraItem(const CameraReading &camera, const Numbered &place,
                          const language::Formats &formats)
{
    QStringList tags;
    if (placeOf(camera) == CameraPlace::BuiltIn)
        tags += Text::tr("built in");
    if (placeOf(camera) == CameraPlace::External)
        tags += Text::tr("external");
    return namedItem(u"camera.%1"_s.arg(place.number), place.label(Text::tr("Camera"), Text::tr("Camera %1")),
                     camera.localizedName, tags, formats);
}

/// None when no format has a size.
const CameraFormat *bestFormat(const CameraReading &camera)
{
    const auto rank = [](const CameraFormat &format) {
        return std::tuple(std::int64_t{format.width} * format.height, format.maxFrameRate);
    };
    const CameraFormat *best = nullptr;
    for (const auto &format : camera.formats) {
        if (format.width > 0 && format.height > 0 && (!best || rank(format) > rank(*best)))
            best = &format;
    }
    return best;
}

CapabilityItem bestPictureItem(const CameraFormat &format, const Numbered &place,
                               const language::Formats &formats)
{
    const auto size = sizeText(format.width, format.height);
    return fact(u"camera.%1.bestPicture"_s.arg(place.number),
                //: The largest picture that the camera gives.
                place.label(Text::tr("Best picture"), Text::tr("Best picture (camera %1)")),
                format.maxFrameRate > 0 ? Text::tr("%1, up to %2 frames per second")
                                              .arg(size, shortNumber(format.maxFrameRate, 2, formats))
                                        : size);
}

/// Center Stage came with macOS 12.3.
bool asksForCenterStage(const platform::OperatingSystem &system)
{
    return system.name == "macOS" && std::tuple(system.major, system.minor) >= std::tuple(12, 3);
}

CapabilityItem centerStageItem(const CameraReading &camera, const Numbered &place)
{
    const auto key = u"camera.%1.centerStage"_s.arg(place.number);
    const auto label = place.label(Text::tr("Center Stage"), Text::tr("Center Stage (camera %1)"));
    const auto tells = [](const CameraFormat &format) { return format.isCenterStageSupported.has_value(); };
    const auto has = [](const CameraFormat &format) { return format.isCenterStageSupported == true; };
    const bool isTold = std::ranges::any_of(camera.formats, tells);
    auto item = capability(key, label,
                           isTold ? std::optional(std::ranges::any_of(camera.formats, has)) : std::nullopt);
    // What an accessory lacks is no fault of the machine.
    if (placeOf(camera) != CameraPlace::BuiltIn && item.status == CapabilityStatus::Unsupported)
        item.status = CapabilityStatus::Info;
    return item;
}

QList<CapabilityItem> cameraItems(const platform::Machine &machine, const language::Formats &formats)
{
    // AVCaptureDeviceDiscoverySession; /sys/class/video4linux
    const auto found = machine.capture().cameras();
    if (!found)
        return {fact(u"camera"_s, Text::tr("Camera"), notReadable())};
    const auto cameras = ownCameras(*found);
    if (cameras.empty())
        return {fact(u"camera"_s, Text::tr("Camera"), Text::tr("None"))};
    const bool hasCenterStage = asksForCenterStage(machine.system().operatingSystem());
    QList<CapabilityItem> items;
    Numbered place{.isOnly = cameras.size() == 1};
    for (const auto &camera : cameras) {
        items += cameraItem(camera, place, formats);
        // AVCaptureDevice.formats
        if (const auto *format = bestFormat(camera))
            items += bestPictureItem(*format, place, formats);
        // AVCaptureDeviceFormat.isCenterStageSupported
        if (hasCenterStage)
            items += centerStageItem(camera, place);
        ++place.number;
    }
    return items;
}

/// What this program may do. It needs neither, so that a refusal is no fault.
CapabilityItem accessItem(const QString &key, const QString &label,
                          std::optional<platform::AuthorizationStatus> status)
{
    return fact(key, label, status ? describe(*status) : notReadable());
}

QList<CapabilityItem> soundCardItems(const platform::Machine &machine, const language::Formats &formats)
{
    // /proc/asound
    const auto cards = machine.capture().soundCards();
    if (!cards || cards->empty())
        return {fact(u"soundCard"_s, Text::tr("Sound card"), cards ? Text::tr("None") : notReadable())};
    QList<CapabilityItem> items;
    Numbered place{.isOnly = cards->size() == 1};
    for (const auto &card : *cards) {
        if (place.number > mostOfAKind)
            break;
        QStringList tags;
        if (card.playback)
            //: A sound card plays; the next: it records.
            tags += Text::tr("output");
        if (card.capture)
            tags += Text::tr("input");
        items += namedItem(u"soundCard.%1"_s.arg(place.number),
                           place.label(Text::tr("Sound card"), Text::tr("Sound card %1")), card.name, tags,
                           formats);
        ++place.number;
    }
    return items;
}

} // namespace

CapabilitySection cameraAudioSection(const platform::Machine &machine, const language::Formats &formats)
{
    using platform::CaptureKind;
    const auto &capture = machine.capture();
    auto items = cameraItems(machine, formats);
    if (isMac(machine)) {
        // [AVCaptureDevice authorizationStatusForMediaType:]
        items += accessItem(u"cameraAccess"_s, Text::tr("Camera access"),
                            capture.authorization(CaptureKind::Video));
        items += accessItem(u"microphoneAccess"_s, Text::tr("Microphone access"),
                            capture.authorization(CaptureKind::Audio));
        items += audioItems(machine, formats);
    } else {
        items += soundCardItems(machine, formats);
    }
    return sectionOf(u"cameraAudio", std::move(items));
}

} // namespace quillmark::inspection::DeviceProbe
