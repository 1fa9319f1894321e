// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreMedia/CoreMedia.h>
#include <Foundation/Foundation.h>

typedef NSString *AVMediaType;
typedef NSString *AVCaptureDeviceType;

typedef CF_ENUM(NSInteger, AVAuthorizationStatus) {
    AVAuthorizationStatusNotDetermined = 0,
    AVAuthorizationStatusRestricted = 1,
    AVAuthorizationStatusDenied = 2,
    AVAuthorizationStatusAuthorized = 3,
};

typedef CF_ENUM(NSInteger, AVCaptureDevicePosition) { AVCaptureDevicePositionUnspecified = 0 };

CF_EXTERN_C_BEGIN

extern const AVMediaType AVMediaTypeVideo;
extern const AVMediaType AVMediaTypeAudio;
extern const AVCaptureDeviceType AVCaptureDeviceTypeBuiltInWideAngleCamera API_AVAILABLE(macos(10.15));
extern const AVCaptureDeviceType AVCaptureDeviceTypeExternal API_AVAILABLE(macos(14.0));
extern const AVCaptureDeviceType
    AVCaptureDeviceTypeExternalUnknown API_DEPRECATED("AVCaptureDeviceTypeExternal", macos(10.15, 14.0));

CF_EXTERN_C_END

@interface AVFrameRateRange : NSObject
@property(readonly) double maxFrameRate;
@end

@interface AVCaptureDeviceFormat : NSObject
@property(readonly, nonatomic) CMFormatDescriptionRef formatDescription;
@property(readonly, nonatomic) NSArray<AVFrameRateRange *> *videoSupportedFrameRateRanges;
@property(readonly, nonatomic, getter=isCenterStageSupported)
    BOOL centerStageSupported API_AVAILABLE(macos(12.3));
@end

@interface AVCaptureDevice : NSObject
+ (AVAuthorizationStatus)authorizationStatusForMediaType:(AVMediaType)mediaType API_AVAILABLE(macos(10.14));
@property(readonly, nonatomic) NSString *localizedName;
@property(readonly, nonatomic) AVCaptureDeviceType deviceType API_AVAILABLE(macos(10.15));
@property(readonly, nonatomic) NSArray<AVCaptureDeviceFormat *> *formats;
@property(readonly, nonatomic, getter=isContinuityCamera) BOOL continuityCamera API_AVAILABLE(macos(13.0));
@end

API_AVAILABLE(macos(10.15))
@interface AVCaptureDeviceDiscoverySession : NSObject
+ (instancetype)discoverySessionWithDeviceTypes:(NSArray<AVCaptureDeviceType> *)deviceTypes
                                      mediaType:(AVMediaType)mediaType
                                       position:(AVCaptureDevicePosition)position;
@property(readonly, nonatomic) NSArray<AVCaptureDevice *> *devices;
@end
