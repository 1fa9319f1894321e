// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/VideoAcceleration.h"
#include "inspection/rows.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

using Decoders = std::optional<std::vector<platform::VideoDecoder>>;
using Encoders = std::optional<std::vector<platform::VideoEncoder>>;
using Codes = std::span<const std::string_view>;

CapabilityItem hardwareItem(const QString &key, const QString &label, bool isInHardware)
{
    return {.label = label,
            .value = isInHardware ? Text::tr("Hardware") : Text::tr("Not in hardware"),
            .status = isInHardware ? CapabilityStatus::Supported : CapabilityStatus::Unsupported,
            .key = key};
}

CapabilityItem decodingItem(const QString &key, const QString &label, const Decoders &decoders,
                            std::string_view code)
{
    if (!decoders)
        return fact(key, label, notReadable());
    return hardwareItem(key, label, std::ranges::any_of(*decoders, [&](const auto &decoder) {
                            return decoder.codecType == fourCC(code) && decoder.isHardwareSupported;
                        }));
}

/// Of several codecs the best counts, and of several encoders of one.
CapabilityItem encodingItem(const QString &key, const QString &label, const Encoders &encoders, Codes codes)
{
    if (!encoders)
        return fact(key, label, notReadable());
    const auto inHardware = hardwareEncoders(*encoders);
    const auto isHardware = [&](std::string_view code) { return inHardware.contains(fourCC(code)); };
    const auto isListed = [&](std::string_view code) {
        return std::ranges::find(*encoders, fourCC(code), &platform::VideoEncoder::codecType) !=
               encoders->end();
    };
    CapabilityItem item{.label = label, .key = key};
    if (std::ranges::any_of(codes, isHardware)) {
        item.value = Text::tr("Hardware");
        item.status = CapabilityStatus::Supported;
    } else if (std::ranges::any_of(codes, isListed)) {
        item.value = Text::tr("Software only");
        item.status = CapabilityStatus::Warning;
    } else {
        item.value = Text::tr("Not supported");
        item.status = CapabilityStatus::Unsupported;
    }
    return item;
}

CapabilityItem imageItem(const QString &key, const QString &label,
                         const std::optional<platform::ImageTypes> &types, const std::string &identifier)
{
    if (!types)
        return fact(key, label, notReadable());
    const auto isAmong = [&](const std::vector<std::string> &list) {
        return std::ranges::find(list, identifier) != list.end();
    };
    CapabilityItem item{.label = label, .status = CapabilityStatus::Supported, .key = key};
    if (!isAmong(types->readable)) {
        item.value = Text::tr("Not supported");
        item.status = CapabilityStatus::Unsupported;
    } else {
        item.value = isAmong(types->writable) ? Text::tr("Read and write") : Text::tr("Read only");
    }
    return item;
}

QList<CapabilityItem> macItems(const platform::Media &media)
{
    static constexpr std::array<std::string_view, 1> h264 = {"avc1"};
    static constexpr std::array<std::string_view, 1> hevc = {"hvc1"};
    static constexpr std::array<std::string_view, 1> av1 = {"av01"};
    static constexpr std::array<std::string_view, 6> proRes = {"apco", "apcs", "apcn",
                                                               "apch", "ap4h", "ap4x"};

    // VTIsHardwareDecodeSupported
    const auto decoders = media.videoDecoders();
    // VTCopyVideoEncoderList
    const auto encoders = media.videoEncoders();
    // CGImageSourceCopyTypeIdentifiers, CGImageDestinationCopyTypeIdentifiers
    const auto images = media.imageTypes();
    return {
        decodingItem(u"h264Decoding"_s, Text::tr("H.264 decoding"), decoders, "avc1"),
        decodingItem(u"hevcDecoding"_s, Text::tr("HEVC decoding"), decoders, "hvc1"),
        decodingItem(u"vp9Decoding"_s, Text::tr("VP9 decoding"), decoders, "vp09"),
        decodingItem(u"av1Decoding"_s, Text::tr("AV1 decoding"), decoders, "av01"),
        decodingItem(u"proResDecoding"_s, Text::tr("ProRes decoding"), decoders, "apcn"),
        encodingItem(u"h264Encoding"_s, Text::tr("H.264 encoding"), encoders, h264),
        encodingItem(u"hevcEncoding"_s, Text::tr("HEVC encoding"), encoders, hevc),
        encodingItem(u"proResEncoding"_s, Text::tr("ProRes encoding"), encoders, proRes),
        encodingItem(u"av1Encoding"_s, Text::tr("AV1 encoding"), encoders, av1),
        imageItem(u"heicImages"_s, Text::tr("HEIC images"), images, "public.heic"),
        imageItem(u"avifImages"_s, Text::tr("AVIF images"), images, "public.avif"),
    };
}

QList<CapabilityItem> codecItems(const VideoAcceleration &acceleration)
{
    const auto decoding = [&](const QString &key, const QString &label, QStringView profile) {
        return hardwareItem(key, label, acceleration.has(profile, u"VAEntrypointVLD"));
    };
    // "VAEntrypointEncSlice" and, in a leaner kind of hardware, "VAEntrypointEncSliceLP"
    const auto encoding = [&](const QString &key, const QString &label, QStringView profile) {
        return hardwareItem(key, label, acceleration.has(profile, u"VAEntrypointEncSlice"));
    };
    return {
        decoding(u"h264Decoding"_s, Text::tr("H.264 decoding"), u"VAProfileH264Main"),
        decoding(u"hevcDecoding"_s, Text::tr("HEVC decoding"), u"VAProfileHEVCMain"),
        decoding(u"vp9Decoding"_s, Text::tr("VP9 decoding"), u"VAProfileVP9Profile0"),
        decoding(u"av1Decoding"_s, Text::tr("AV1 decoding"), u"VAProfileAV1Profile0"),
        encoding(u"h264Encoding"_s, Text::tr("H.264 encoding"), u"VAProfileH264"),
        encoding(u"hevcEncoding"_s, Text::tr("HEVC encoding"), u"VAProfileHEVCMain"),
        encoding(u"av1Encoding"_s, Text::tr("AV1 encoding"), u"VAProfileAV1"),
    };
}

QString describe(platform::NoAnswer reason)
{
    switch (reason) {
    case platform::NoAnswer::NoDevice:
        return Text::tr("None");
    case platform::NoAnswer::NotInstalled:
        return Text::tr("Not readable (vainfo is not installed)");
    case platform::NoAnswer::Asleep:
        return Text::tr("Not readable (the GPU is asleep)");
    case platform::NoAnswer::Failed:
        break;
    }
    return notReadable();
}

QList<CapabilityItem> linuxItems(const platform::Media &media)
{
    QList<CapabilityItem> items;
    // vainfo
    const auto answer = media.vainfo();
    const auto acceleration = answer ? videoAcceleration(*answer) : VideoAcceleration();
    if (acceleration.entries)
        items = codecItems(acceleration);
    items += fact(u"videoDriver"_s, Text::tr("Video driver"),
                  answer ? acceleration.driver.value_or(notReadable()) : describe(answer.error()));
    return items;
}

} // namespace

CapabilitySection mediaSection(const platform::Machine &machine, const language::Formats &)
{
    return {.title = Text::tr("Media"),
            .symbol = u"film"_s,
            .items = isMac(machine) ? macItems(machine.media()) : linuxItems(machine.media()),
            .key = u"media"_s};
}

} // namespace quillmark::inspection::DeviceProbe
