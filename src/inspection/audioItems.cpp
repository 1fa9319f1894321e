// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/audioItems.h"

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/values.h"

#include <algorithm>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using platform::AudioDevice;
using Devices = std::optional<std::vector<AudioDevice>>;

/// At less than this a Bluetooth device has gone over from music to telephony.
constexpr double leastMusicRate = 32'000;

/// More of them is no answer.
constexpr std::uint32_t mostChannels = 1024;

bool isBuiltIn(const AudioDevice &device)
{
    return device.transport == DeviceProbe::fourCC("bltn");
}

/// A lack is one only among portables, all of which have speakers and a microphone.
std::optional<Verdict> builtInVerdict(const Devices &devices, std::uint32_t AudioDevice::*channels,
                                      bool hasBattery)
{
    if (!devices)
        return std::nullopt;
    const bool isThere = std::ranges::any_of(*devices, [channels](const AudioDevice &device) {
        return isBuiltIn(device) && device.*channels >= 1;
    });
    if (isThere)
        return availability(true);
    return hasBattery ? Verdict{Text::tr("None"), CapabilityStatus::Unsupported}
                      : Verdict{Text::tr("None (desktop)")};
}

const AudioDevice *deviceWith(std::uint32_t id, const Devices &devices)
{
    if (!devices)
        return nullptr;
    const auto found = std::ranges::find(*devices, id, &AudioDevice::id);
    return found == devices->end() ? nullptr : &*found;
}

/// Names of devices that people give are not shown.
QString nameOf(const AudioDevice &device)
{
    if (const auto kind = platform::personalDevice(device.transport)) {
        switch (*kind) {
        case platform::PersonalDevice::Bluetooth:
            return Text::tr("Bluetooth device");
        case platform::PersonalDevice::AirPlay:
            return Text::tr("AirPlay device");
        case platform::PersonalDevice::Mobile:
            return Text::tr("iPhone or iPad");
        }
    }
    return device.name && !device.name->empty() ? QString::fromStdString(*device.name) : notReadable();
}

QString defaultText(std::optional<std::uint32_t> id, const Devices &devices)
{
    if (id == 0u)
        return Text::tr("None");
    const auto *device = id ? deviceWith(*id, devices) : nullptr;
    return device ? nameOf(*device) : notReadable();
}

QString kilohertz(double hertz, const language::Formats &formats)
{
    return Text::tr("%1\u00a0kHz").arg(shortNumber(hertz / 1000, 3, formats));
}

std::optional<Verdict> outputFormatVerdict(const AudioDevice *device, const language::Formats &formats)
{
    const auto rate = device ? device->nominalSampleRate.value_or(0) : 0;
    if (rate <= 0 || device->outputChannels < 1 || device->outputChannels > mostChannels)
        return std::nullopt;
    const bool isForCalls = rate < leastMusicRate && platform::personalDevice(device->transport) ==
                                                         platform::PersonalDevice::Bluetooth;
    const int channels = static_cast<int>(device->outputChannels);
    const auto text = Text::tr("%1, %n channels", nullptr, channels).arg(kilohertz(rate, formats));
    if (isForCalls)
        return Verdict{Text::tr("%1 (call quality: a microphone is in use)").arg(text),
                       CapabilityStatus::Warning};
    return Verdict{text};
}

/// None when no built-in output tells its rates.
std::optional<double> highestBuiltInRate(const Devices &devices)
{
    double highest = 0;
    for (const auto &device : devices.value_or(std::vector<AudioDevice>())) {
        if (!isBuiltIn(device) || device.outputChannels < 1)
            continue;
        for (const auto &[least, most] : device.availableSampleRates)
            highest = std::max(highest, most);
    }
    return highest > 0 ? std::optional(highest) : std::nullopt;
}

} // namespace

QList<CapabilityItem> audioItems(const platform::Machine &machine, const language::Formats &formats)
{
    const auto &capture = machine.capture();
    const bool hasBattery = DeviceProbe::hasBattery(machine);
    // Core Audio: 'dev#', of each device 'tran' and 'slay'
    const auto devices = capture.audioDevices();
    // Core Audio: 'dIn ', 'dOut'
    const auto defaults = capture.audioDefaults();
    const auto output = defaults ? std::optional(defaults->output) : std::nullopt;
    const auto input = defaults ? std::optional(defaults->input) : std::nullopt;

    QList<CapabilityItem> items = {
        judged(u"builtInSpeakers"_s, Text::tr("Built-in speakers"),
               builtInVerdict(devices, &AudioDevice::outputChannels, hasBattery)),
        judged(u"builtInMicrophone"_s, Text::tr("Built-in microphone"),
               builtInVerdict(devices, &AudioDevice::inputChannels, hasBattery)),
        // 'lnam', 'tran'
        passing(fact(u"soundOutput"_s, Text::tr("Sound output"), defaultText(output, devices))),
    };
    // 'nsrt', and 'slay' of its outputs
    if (output.value_or(0) != 0)
        items += passing(judged(u"outputFormat"_s, Text::tr("Output format"),
                                outputFormatVerdict(deviceWith(*output, devices), formats)));
    // 'nsr#'
    if (const auto rate = highestBuiltInRate(devices))
        items += fact(u"highestOutputRate"_s, Text::tr("Highest output rate"), kilohertz(*rate, formats));
    // 'lnam', 'tran'
    items += passing(fact(u"soundInput"_s, Text::tr("Sound input"), defaultText(input, devices)));
    return items;
}

} // namespace quillmark::inspection
