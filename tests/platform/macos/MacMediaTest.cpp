// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacMedia.h"

#include "check.h"
#include "coreFoundation.h"

#include <ImageIO/ImageIO.h>
#include <VideoToolbox/VideoToolbox.h>

namespace {

OSStatus status = 0;
bool imagesAreTold = true;
std::string calls; ///< the codecs in the order in which they were registered (+) and asked for (?)

std::string characters(CMVideoCodecType codec)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(codec >> shift);
    return text;
}

} // namespace

extern "C" {

const CFStringRef kVTVideoEncoderList_CodecType = CFSTR("CodecType");
const CFStringRef kVTVideoEncoderList_IsHardwareAccelerated = CFSTR("IsHardwareAccelerated");

OSStatus VTCopyVideoEncoderList(CFDictionaryRef, CFArrayRef *list)
{
    using namespace standin;
    if (status == 0)
        *list = array({dictionary({{"CodecType", number('avc1')}, {"IsHardwareAccelerated", boolean(true)}}),
                       dictionary({{"CodecType", number('avc1')}}),
                       dictionary({{"CodecType", number(std::int32_t(0xf0636973))}}),
                       dictionary({{"CodecType", number('hvc1')}, {"IsHardwareAccelerated", number(1)}}),
                       dictionary({{"CodecType", text("hvc1")}}),
                       dictionary({{"CodecType", number(1LL << 40)}}), text("hvc1"), dictionary({})});
    return status;
}
Boolean VTIsHardwareDecodeSupported(CMVideoCodecType codec)
{
    calls += '?' + characters(codec);
    return codec == kCMVideoCodecType_HEVC || calls.contains('+' + characters(codec));
}
void VTRegisterSupplementalVideoDecoderIfAvailable(CMVideoCodecType codec)
{
    calls += '+' + characters(codec);
}
CFArrayRef CGImageSourceCopyTypeIdentifiers()
{
    return standin::array({standin::text("public.heic"), standin::other(), standin::text("public.avif")});
}
CFArrayRef CGImageDestinationCopyTypeIdentifiers()
{
    return imagesAreTold ? standin::array({standin::text("public.heic")}) : nullptr;
}
}

using namespace quillmark::platform;

int main()
{
    const MacMedia media;
    const std::vector<VideoEncoder> encoders = {{'avc1', true}, {'avc1', {}}, {0xf0636973, {}}, {'hvc1', {}}};
    CHECK(media.videoEncoders() == encoders);
    status = -12902;
    CHECK(!media.videoEncoders());

    const std::vector<VideoDecoder> decoders = {
        {'avc1', false}, {'hvc1', true}, {'vp09', true}, {'av01', true}, {'apcn', false}};
    CHECK(media.videoDecoders() == decoders);
    CHECK(calls == "+vp09+av01?avc1?hvc1?vp09?av01?apcn");

    CHECK(media.imageTypes() == ImageTypes{{"public.heic", "public.avif"}, {"public.heic"}});
    imagesAreTold = false;
    CHECK(!media.imageTypes());
    CHECK(standin::references == 0);
    return standin::result();
}
