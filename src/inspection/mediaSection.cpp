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

Verdict hardwareVerdict(bool isInHardware)
{
    if (isInHardware)
        //: Video is decoded or encoded by a part of the processor made for it.
        return {Text::tr("Hardware"), CapabilityStatus::Supported};
    return {Text::tr("Not in hardware"), CapabilityStatus::Unsupported};
}

std::optional<Verdict> decodingVerdict(const Decoders &decoders, std::string_view code)
{
    if (!decoders)
        return std::nullopt;
    return hardwareVerdict(std::ranges::any_of(*decoders, [&](const auto &decoder) {
        return decoder.codecType == fourCC(code) && decoder.isHardwareSupported;
    }));
}

/// Of several codecs the best counts, and of several encoders of one.
std::optional<Verdict> encodingVerdict(const Encoders &encoders, Codes codes)
{
    if (!encoders)
        return std::nullopt;
    const auto inHardware = hardwareEncoders(*encoders);
    const auto isHardware = [&](std::string_view code) { return inHardware.contains(fourCC(code)); };
    const auto isListed = [&](std::string_view code) {
        return std::ranges::find(*encoders, fourCC(code), &platform::VideoEncoder::codecType) !=
               encoders->end();
    };
    if (std::ranges::any_of(codes, isHardware))
        return Verdict{Text::tr("Hardware"), CapabilityStatus::Supported};
    if (std::ranges::any_of(codes, isListed))
        return Verdict{Text::tr("Software only"), CapabilityStatus::Warning};
    return Verdict{Text::tr("Not supported"), CapabilityStatus::Unsupported};
}

std::optional<Verdict> imageVerdict(const std::optional<platform::ImageTypes> &types,
                                    const std::string &identifier)
{
    if (!types)
        return std::nullopt;
    const auto isAmong = [&](const std::vector<std::string> &list) {
        return std::ranges::find(list, identifier) != list.end();
    };
    if (!isAmong(types->readable))
        return Verdict{Text::tr("Not supported"), CapabilityStatus::Unsupported};
    return Verdict{isAmong(types->writable) ? Text::tr("Read and write") : Text::tr("Read only"),
                   CapabilityStatus::Supported};
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
        judged(u"h264Decoding"_s, Text::tr("H.264 decoding"), decodingVerdict(decoders, "avc1")),
        judged(u"hevcDecoding"_s, Text::tr("HEVC decoding"), decodingVerdict(decoders, "hvc1")),
        judged(u"vp9Decoding"_s, Text::tr("VP9 decoding"), decodingVerdict(decoders, "vp09")),
        judged(u"av1Decoding"_s, Text::tr("AV1 decoding"), decodingVerdict(decoders, "av01")),
        judged(u"proResDecoding"_s, Text::tr("ProRes decoding"), decodingVerdict(decoders, "apcn")),
        judged(u"h264Encoding"_s, Text::tr("H.264 encoding"), encodingVerdict(encoders, h264)),
        judged(u"hevcEncoding"_s, Text::tr("HEVC encoding"), encodingVerdict(encoders, hevc)),
        judged(u"proResEncoding"_s, Text::tr("ProRes encoding"), encodingVerdict(encoders, proRes)),
        judged(u"av1Encoding"_s, Text::tr("AV1 encoding"), encodingVerdict(encoders, av1)),
        judged(u"heicImages"_s, Text::tr("HEIC images"), imageVerdict(images, "public.heic")),
        judged(u"avifImages"_s, Text::tr("AVIF images"), imageVerdict(images, "public.avif")),
    };
}

QList<CapabilityItem> codecItems(const VideoAcceleration &acceleration)
{
    const auto decoding = [&](const QString &key, const QString &label, QStringView profile) {
        return judged(key, label, hardwareVerdict(acceleration.has(profile, u"VAEntrypointVLD")));
    };
    // "VAEntrypointEncSlice" and, in a leaner kind of hardware, "VAEntrypointEncSliceLP"
    constexpr QStringView encoder = u"VAEntrypointEncSlice";
    const auto encoding = [](const QString &key, const QString &label, bool inHardware) {
        return judged(key, label, hardwareVerdict(inHardware));
    };
    return {
        decoding(u"h264Decoding"_s, Text::tr("H.264 decoding"), u"VAProfileH264Main"),
        decoding(u"hevcDecoding"_s, Text::tr("HEVC decoding"), u"VAProfileHEVCMain"),
        decoding(u"vp9Decoding"_s, Text::tr("VP9 decoding"), u"VAProfileVP9Profile0"),
        decoding(u"av1Decoding"_s, Text::tr("AV1 decoding"), u"VAProfileAV1Profile0"),
        encoding(u"h264Encoding"_s, Text::tr("H.264 encoding"),
                 acceleration.hasAny(u"VAProfileH264", encoder)),
        encoding(u"hevcEncoding"_s, Text::tr("HEVC encoding"),
                 acceleration.has(u"VAProfileHEVCMain", encoder)),
        encoding(u"av1Encoding"_s, Text::tr("AV1 encoding"), acceleration.hasAny(u"VAProfileAV1", encoder)),
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
    return sectionOf(u"media", isMac(machine) ? macItems(machine.media()) : linuxItems(machine.media()));
}

} // namespace quillmark::inspection::DeviceProbe
