// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/wifiItems.h"

#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <array>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using platform::WifiReading;

std::optional<Verdict> wifiVerdict(const std::optional<WifiReading> &wifi)
{
    if (wifi && !wifi->isPresent)
        return Verdict{Text::tr("None")};
    if (!wifi || !wifi->powerOn)
        return std::nullopt;
    return *wifi->powerOn ? Verdict{Text::tr("On"), CapabilityStatus::Supported} : Verdict{Text::tr("Off")};
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

Verdict signalVerdict(int decibels, const language::Formats &formats)
{
    constexpr int leastGood = -67;
    constexpr int leastFair = -75;
    const auto magnitude = wholeNumber(-std::int64_t{decibels}, formats);
    if (decibels >= leastGood)
        return {Text::tr("−%1\u00a0"
                         "dBm (good)")
                    .arg(magnitude),
                CapabilityStatus::Supported};
    if (decibels >= leastFair)
        return {Text::tr("−%1\u00a0"
                         "dBm (fair)")
                    .arg(magnitude)};
    return {Text::tr("−%1\u00a0"
                     "dBm (weak)")
                .arg(magnitude),
            CapabilityStatus::Warning};
}

/// The Wi-Fi connection of the moment; nothing where there is none.
QList<CapabilityItem> connectionItems(const WifiReading &wifi, const language::Formats &formats)
{
    constexpr std::array<double, 3> gigahertz = {2.4, 5, 6}; // by CoreWLAN's number of the band, from 1
    QList<CapabilityItem> items;
    const int band = wifi.channelBand.value_or(0);
    // CWInterface.activePHYMode
    if (const int mode = wifi.activePHYMode.value_or(0); mode >= 1)
        items += passing(
            fact(u"wifiStandard"_s, Text::tr("Wi-Fi standard in use"), wifiStandard(mode, band == 3)));
    // CWInterface.wlanChannel.channelBand
    if (band >= 1 && band <= 3) {
        const double frequency = gigahertz[static_cast<std::size_t>(band - 1)];
        items += passing(fact(u"wifiBand"_s, Text::tr("Wi-Fi band"),
                              Text::tr("%1\u00a0GHz").arg(shortNumber(frequency, 1, formats))));
    }
    // CWInterface.rssiValue; Linux: /proc/net/wireless
    if (const int decibels = wifi.rssi.value_or(0); decibels < 0)
        items += passing(judged(u"wifiSignal"_s, Text::tr("Wi-Fi signal"), signalVerdict(decibels, formats)));
    // CWInterface.transmitRate
    if (const double rate = wifi.transmitRate.value_or(0); rate > 0)
        items += passing(fact(u"wifiRate"_s, Text::tr("Wi-Fi rate"),
                              Text::tr("%1\u00a0Mbit/s").arg(formats.number(rate))));
    return items;
}

} // namespace

QList<CapabilityItem> wifiItems(const std::optional<WifiReading> &wifi, const language::Formats &formats)
{
    QList<CapabilityItem> items = {judged(u"wifi"_s, u"Wi-Fi"_s, wifiVerdict(wifi))};
    if (wifi && wifi->isPresent)
        items += connectionItems(*wifi, formats);
    return items;
}

} // namespace quillmark::inspection
