// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Foundation/Foundation.h>

typedef CF_ENUM(NSInteger, CWPHYMode) { kCWPHYModeNone = 0 };
typedef CF_ENUM(NSInteger, CWChannelBand) { kCWChannelBandUnknown = 0 };

@interface CWChannel : NSObject
@property(readonly) CWChannelBand channelBand;
@end

@interface CWInterface : NSObject
- (BOOL)powerOn;
- (CWPHYMode)activePHYMode;
- (NSInteger)rssiValue;
- (double)transmitRate;
- (CWChannel *)wlanChannel;
@end

@interface CWWiFiClient : NSObject
+ (CWWiFiClient *)sharedWiFiClient API_AVAILABLE(macos(10.10));
- (CWInterface *)interface;
@end
