// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacCapture.h"

#include "platform/macos/audioDevices.h"
#include "platform/macos/text.h"

#include <algorithm>

#import <AVFoundation/AVFoundation.h>

namespace quillmark::platform {

namespace {

CameraFormat describe(AVCaptureDeviceFormat *format)
{
    const CMVideoDimensions size = ::CMVideoFormatDescriptionGetDimensions(format.formatDescription);
    CameraFormat description = {.width = size.width,
                                .height = size.height,
                                .isCenterStageSupported = static_cast<bool>(format.isCenterStageSupported)};
    for (AVFrameRateRange *range in format.videoSupportedFrameRateRanges)
        description.maxFrameRate = std::max(description.maxFrameRate, range.maxFrameRate);
    return description;
}

AVCaptureDeviceType externalType()
{
    if (@available(macOS 14.0, *))
        return AVCaptureDeviceTypeExternal;
    return AVCaptureDeviceTypeExternalUnknown;
}

/// The framework's word without its prefix.
std::optional<std::string> wordOf(AVCaptureDeviceType type)
{
    constexpr std::string_view prefix = "AVCaptureDeviceType";
    auto word = textOf(type);
    if (word && word->starts_with(prefix))
        word->erase(0, prefix.size());
    return word;
}

CameraReading describe(AVCaptureDevice *camera)
{
    CameraReading reading = {.localizedName = textOf(camera.localizedName).value_or(std::string()),
                             .deviceType = wordOf(camera.deviceType)};
    for (AVCaptureDeviceFormat *format in camera.formats)
        reading.formats.push_back(describe(format));
    return reading;
}

} // namespace

std::optional<AuthorizationStatus> MacCapture::authorization(CaptureKind kind) const
{
    @autoreleasepool {
        const AVMediaType type = kind == CaptureKind::Video ? AVMediaTypeVideo : AVMediaTypeAudio;
        return static_cast<AuthorizationStatus>([AVCaptureDevice authorizationStatusForMediaType:type]);
    }
}

std::optional<std::vector<CameraReading>> MacCapture::cameras() const
{
    @autoreleasepool {
        AVCaptureDeviceDiscoverySession *session = [AVCaptureDeviceDiscoverySession
            discoverySessionWithDeviceTypes:@[ AVCaptureDeviceTypeBuiltInWideAngleCamera, externalType() ]
                                  mediaType:AVMediaTypeVideo
                                   position:AVCaptureDevicePositionUnspecified];
        std::vector<CameraReading> cameras;
        for (AVCaptureDevice *camera in session.devices) {
            // A telephone is listed under one of these types, too, by programs that do not tell it apart.
            if (!camera.isContinuityCamera)
                cameras.push_back(describe(camera));
        }
        return cameras;
    }
}

std::optional<std::vector<AudioDevice>> MacCapture::audioDevices() const
{
    return readAudioDevices();
}

std::optional<AudioDefaults> MacCapture::audioDefaults() const
{
    return readAudioDefaults();
}

} // namespace quillmark::platform
