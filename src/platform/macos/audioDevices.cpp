// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/audioDevices.h"

#include "platform/macos/cf.h"

#include <cstddef>
#include <cstring>

#include <CoreAudio/CoreAudio.h>

namespace quillmark::platform {

namespace {

AudioObjectPropertyAddress addressOf(AudioObjectPropertySelector selector,
                                     AudioObjectPropertyScope scope = kAudioObjectPropertyScopeGlobal)
{
    return {selector, scope, kAudioObjectPropertyElementMain};
}

/// A property of a fixed size; none when it has another.
template <typename T>
std::optional<T> property(AudioObjectID object, AudioObjectPropertySelector selector)
{
    const AudioObjectPropertyAddress address = addressOf(selector);
    T value = {};
    UInt32 size = sizeof value;
    const bool isRead = ::AudioObjectGetPropertyData(object, &address, 0, nullptr, &size, &value) == noErr;
    return isRead && size == sizeof value ? std::optional(value) : std::nullopt;
}

/// The bytes of a property whose size varies. They shrink when something vanishes between the two calls.
std::optional<std::vector<std::byte>> bytesOf(AudioObjectID object, AudioObjectPropertyAddress address)
{
    UInt32 size = 0;
    if (::AudioObjectGetPropertyDataSize(object, &address, 0, nullptr, &size) != noErr)
        return std::nullopt;
    std::vector<std::byte> bytes(size);
    if (::AudioObjectGetPropertyData(object, &address, 0, nullptr, &size, bytes.data()) != noErr)
        return std::nullopt;
    bytes.resize(size);
    return bytes;
}

template <typename T>
std::vector<T> elementsOf(const std::vector<std::byte> &bytes)
{
    std::vector<T> elements(bytes.size() / sizeof(T));
    if (!elements.empty())
        std::memcpy(elements.data(), bytes.data(), elements.size() * sizeof(T));
    return elements;
}

std::uint32_t channelsOf(AudioObjectID device, AudioObjectPropertyScope scope)
{
    const auto bytes = bytesOf(device, addressOf(kAudioDevicePropertyStreamConfiguration, scope));
    constexpr std::size_t header = offsetof(AudioBufferList, mBuffers);
    if (!bytes || bytes->size() < header)
        return 0;
    std::uint32_t channels = 0;
    for (const AudioBuffer &buffer :
         elementsOf<AudioBuffer>({bytes->begin() + std::ptrdiff_t{header}, bytes->end()}))
        channels += buffer.mNumberChannels;
    return channels;
}

std::optional<std::string> nameOf(AudioObjectID device)
{
    const cf::Owner name(property<CFStringRef>(device, kAudioObjectPropertyName).value_or(nullptr));
    return cf::text(name.get());
}

std::vector<std::pair<double, double>> ratesOf(AudioObjectID device)
{
    const auto bytes = bytesOf(device, addressOf(kAudioDevicePropertyAvailableNominalSampleRates));
    std::vector<std::pair<double, double>> rates;
    for (const AudioValueRange &range : elementsOf<AudioValueRange>(bytes.value_or(std::vector<std::byte>())))
        rates.emplace_back(range.mMinimum, range.mMaximum);
    return rates;
}

/// None for a device that has vanished since it was listed.
std::optional<AudioDevice> readDevice(AudioObjectID id)
{
    const auto transport = property<UInt32>(id, kAudioDevicePropertyTransportType);
    if (!transport)
        return std::nullopt;
    AudioDevice device = {.id = id,
                          .transport = *transport,
                          .inputChannels = channelsOf(id, kAudioObjectPropertyScopeInput),
                          .outputChannels = channelsOf(id, kAudioObjectPropertyScopeOutput),
                          .nominalSampleRate = property<Float64>(id, kAudioDevicePropertyNominalSampleRate),
                          .availableSampleRates = ratesOf(id)};
    if (!personalDevice(*transport))
        device.name = nameOf(id);
    return device;
}

} // namespace

std::optional<std::vector<AudioDevice>> readAudioDevices()
{
    const auto bytes = bytesOf(kAudioObjectSystemObject, addressOf(kAudioHardwarePropertyDevices));
    if (!bytes)
        return std::nullopt;
    std::vector<AudioDevice> devices;
    for (const AudioObjectID id : elementsOf<AudioObjectID>(*bytes)) {
        if (auto device = readDevice(id))
            devices.push_back(std::move(*device));
    }
    return devices;
}

std::optional<AudioDefaults> readAudioDefaults()
{
    const auto input =
        property<AudioObjectID>(kAudioObjectSystemObject, kAudioHardwarePropertyDefaultInputDevice);
    const auto output =
        property<AudioObjectID>(kAudioObjectSystemObject, kAudioHardwarePropertyDefaultOutputDevice);
    if (!input || !output)
        return std::nullopt;
    return AudioDefaults{.input = *input, .output = *output};
}

} // namespace quillmark::platform
