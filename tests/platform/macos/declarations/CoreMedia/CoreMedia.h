// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef FourCharCode CMVideoCodecType;
typedef const struct CF_BRIDGED_TYPE(id) opaqueCMFormatDescription *CMFormatDescriptionRef;
typedef CMFormatDescriptionRef CMVideoFormatDescriptionRef;

typedef struct
{
    int32_t width;
    int32_t height;
} CMVideoDimensions;

CF_ENUM(CMVideoCodecType, ){
    kCMVideoCodecType_H264 = 'avc1',
    kCMVideoCodecType_HEVC = 'hvc1',
    kCMVideoCodecType_VP9 = 'vp09',
    kCMVideoCodecType_AV1 = 'av01',
    kCMVideoCodecType_AppleProRes422 = 'apcn',
};

CF_EXTERN_C_BEGIN

CMVideoDimensions CMVideoFormatDescriptionGetDimensions(CMVideoFormatDescriptionRef description);

CF_EXTERN_C_END
