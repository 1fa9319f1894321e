// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreMedia/CoreMedia.h>

CF_EXTERN_C_BEGIN

extern const CFStringRef kVTVideoEncoderList_CodecType;
extern const CFStringRef kVTVideoEncoderList_IsHardwareAccelerated API_AVAILABLE_MACOS(10.14);

OSStatus VTCopyVideoEncoderList(CFDictionaryRef options, CFArrayRef *list);
Boolean VTIsHardwareDecodeSupported(CMVideoCodecType codec) API_AVAILABLE_MACOS(10.13);
void VTRegisterSupplementalVideoDecoderIfAvailable(CMVideoCodecType codec) API_AVAILABLE_MACOS(11.0);

CF_EXTERN_C_END
