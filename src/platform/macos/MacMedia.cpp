// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacMedia.h"

#include "platform/macos/cf.h"

#include <ImageIO/ImageIO.h>
#include <VideoToolbox/VideoToolbox.h>

namespace quillmark::platform {

namespace {

std::vector<std::string> texts(CFArrayRef array)
{
    std::vector<std::string> list;
    for (CFIndex i = 0; i < ::CFArrayGetCount(array); ++i) {
        if (auto text = cf::text(::CFArrayGetValueAtIndex(array, i)))
            list.push_back(std::move(*text));
    }
    return list;
}

} // namespace

std::optional<std::vector<VideoEncoder>> MacMedia::videoEncoders() const
{
    cf::Owner<CFArrayRef> list;
    if (::VTCopyVideoEncoderList(nullptr, list.out()) != noErr || !list)
        return std::nullopt;
    std::vector<VideoEncoder> encoders;
    for (CFIndex i = 0; i < ::CFArrayGetCount(list.get()); ++i) {
        const auto entry = cf::dictionary(::CFArrayGetValueAtIndex(list.get(), i));
        const auto codec = cf::code(cf::find(entry, kVTVideoEncoderList_CodecType));
        if (codec)
            encoders.push_back({.codecType = *codec,
                                .isHardwareAccelerated =
                                    cf::boolean(cf::find(entry, kVTVideoEncoderList_IsHardwareAccelerated))});
    }
    return encoders;
}

std::optional<std::vector<VideoDecoder>> MacMedia::videoDecoders() const
{
    // Decoders of these are loaded only into programs that ask for them.
    for (const CMVideoCodecType supplemental : {kCMVideoCodecType_VP9, kCMVideoCodecType_AV1})
        ::VTRegisterSupplementalVideoDecoderIfAvailable(supplemental);
    std::vector<VideoDecoder> decoders;
    for (const CMVideoCodecType codec :
         {kCMVideoCodecType_H264, kCMVideoCodecType_HEVC, kCMVideoCodecType_VP9, kCMVideoCodecType_AV1,
          kCMVideoCodecType_AppleProRes422})
        decoders.push_back(
            {.codecType = codec, .isHardwareSupported = ::VTIsHardwareDecodeSupported(codec) != 0});
    return decoders;
}

std::optional<ImageTypes> MacMedia::imageTypes() const
{
    const cf::Owner readable(::CGImageSourceCopyTypeIdentifiers());
    const cf::Owner writable(::CGImageDestinationCopyTypeIdentifiers());
    if (!readable || !writable)
        return std::nullopt;
    return ImageTypes{.readable = texts(readable.get()), .writable = texts(writable.get())};
}

} // namespace quillmark::platform
