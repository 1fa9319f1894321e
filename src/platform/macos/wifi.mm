// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/wifi.h"

#import <CoreWLAN/CoreWLAN.h>

namespace quillmark::platform {

WifiReading readWifi()
{
    @autoreleasepool {
        CWInterface *interface = CWWiFiClient.sharedWiFiClient.interface;
        if (!interface)
            return {};
        WifiReading reading = {.isPresent = true,
                               .powerOn = static_cast<bool>(interface.powerOn),
                               .activePHYMode = static_cast<int>(interface.activePHYMode),
                               .rssi = static_cast<int>(interface.rssiValue),
                               .transmitRate = interface.transmitRate};
        if (CWChannel *channel = interface.wlanChannel)
            reading.channelBand = static_cast<int>(channel.channelBand);
        return reading;
    }
}

} // namespace quillmark::platform
