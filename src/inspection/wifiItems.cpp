// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/Text.h"
#include "inspection/networkRows.h"
#include "inspection/rows.h"

#include <array>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using platform::WifiReading;

CapabilityItem wifiItem(const std::optional<WifiReading> &wifi)
{
    CapabilityItem item = fact(u"wifi"_s, u"Wi-Fi"_s, notReadable());
    if (wifi && !wifi->isPresent) {
        item.value = Text::tr("None");
    } else if (wifi && wifi->powerOn) {
        item.value = *wifi->powerOn ? Text::tr("On") : Text::tr("Off");
        item.status = *wifi->powerOn ? CapabilityStatus::Supported : CapabilityStatus::Info;
    }
    return item;
}

QString wifiStandard(int mode, bool isOn6GHz)
{
    switch (mode) {
    case 1:
        return u"802.11a"_s;
    case 2:
        return u"802.11b"_s;
    case 3:
        return u"802.11g"_s;
    case 4:
        return u"Wi-Fi 4 (802.11n)"_s;
    case 5:
        return u"Wi-Fi 5 (802.11ac)"_s;
    case 6:
        return isOn6GHz ? u"Wi-Fi 6E (802.11ax)"_s : u"Wi-Fi 6 (802.11ax)"_s;
    case 7:
        return u"Wi-Fi 7 (802.11be)"_s;
    default:
        return notReadable();
    }
}

CapabilityItem wifiSignalItem(int decibels, const language::Formats &formats)
{
    constexpr int leastGood = -67;
    constexpr int leastFair = -75;
    const auto strength = withUnit(u'\u2212' + formats.number(-static_cast<double>(decibels)), u"dBm"_s);
    const auto item = [&strength](const QString &text, CapabilityStatus status) {
        return volatileItem(u"wifiSignal"_s, Text::tr("Wi-Fi signal"), text.arg(strength), status);
    };
    if (decibels >= leastGood)
        return item(Text::tr("%1 (good)"), CapabilityStatus::Supported);
    if (decibels >= leastFair)
        return item(Text::tr("%1 (fair)"), CapabilityStatus::Info);
    return item(Text::tr("%1 (weak)"), CapabilityStatus::Warning);
}

/// The Wi-Fi connection of the moment; nothing where there is none.
QList<CapabilityItem> connectionItems(const WifiReading &wifi, const language::Formats &formats)
{
    constexpr std::array<int, 3> bandTenthsOfGHz = {24, 50, 60};
    QList<CapabilityItem> items;
    const int band = wifi.channelBand.value_or(0);
    // CWInterface.activePHYMode
    if (const int mode = wifi.activePHYMode.value_or(0); mode >= 1)
        items +=
            volatileItem(u"wifiStandard"_s, Text::tr("Wi-Fi standard in use"), wifiStandard(mode, band == 3));
    // CWInterface.wlanChannel.channelBand
    if (band >= 1 && band <= 3) {
        const int tenths = bandTenthsOfGHz[static_cast<std::size_t>(band - 1)];
        items += volatileItem(u"wifiBand"_s, Text::tr("Wi-Fi band"),
                              withUnit(formats.number(tenths / 10.0, tenths % 10 == 0 ? 0 : 1), u"GHz"_s));
    }
    // CWInterface.rssiValue; Linux: /proc/net/wireless
    if (const int decibels = wifi.rssi.value_or(0); decibels < 0)
        items += wifiSignalItem(decibels, formats);
    // CWInterface.transmitRate
    if (const double rate = wifi.transmitRate.value_or(0); rate > 0)
        items += volatileItem(u"wifiRate"_s, Text::tr("Wi-Fi rate"),
                              withUnit(formats.number(rate), Text::tr("Mbit/s")));
    return items;
}

} // namespace

QList<CapabilityItem> wifiItems(const platform::Machine &machine, const language::Formats &formats)
{
    // CWWiFiClient; Linux: /sys/class/net, /sys/class/rfkill
    const auto wifi = machine.network().wifi();
    QList<CapabilityItem> items = {wifiItem(wifi)};
    if (wifi && wifi->isPresent)
        items += connectionItems(*wifi, formats);
    return items;
}

} // namespace quillmark::inspection
