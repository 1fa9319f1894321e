// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillmark::platform {

/// What the user has allowed this program (AVAuthorizationStatus). A newer system may give other numbers.
enum class AuthorizationStatus : std::int32_t {
    NotDetermined = 0,
    Restricted = 1,
    Denied = 2,
    Authorized = 3
};

enum class CaptureKind { Video, Audio };

/// A picture size that a camera offers.
struct CameraFormat
{
    std::int32_t width = 0;  ///< pixels
    std::int32_t height = 0; ///< pixels
    double maxFrameRate = 0; ///< pictures a second
    std::optional<bool> isCenterStageSupported;

    bool operator==(const CameraFormat &) const = default;
};

struct CameraReading
{
    std::string localizedName;
    std::optional<std::string> deviceType; ///< "BuiltInWideAngleCamera", "External"
    std::vector<CameraFormat> formats;

    bool operator==(const CameraReading &) const = default;
};

/// Whose a camera is. One that is borrowed from a telephone bears its owner's name, and is neither shown nor
/// recorded.
enum class CameraPlace { BuiltIn, External, Borrowed, NotTold };

inline CameraPlace placeOf(const CameraReading &camera)
{
    if (!camera.deviceType)
        return CameraPlace::NotTold;
    if (camera.deviceType == "BuiltInWideAngleCamera")
        return CameraPlace::BuiltIn;
    // Before macOS 14 the second word.
    if (camera.deviceType == "External" || camera.deviceType == "ExternalUnknown")
        return CameraPlace::External;
    return CameraPlace::Borrowed;
}

/// An audio device of CoreAudio.
struct AudioDevice
{
    std::uint32_t id = 0;
    std::optional<std::string> name; ///< not asked for where the device is a personal one
    std::uint32_t transport = 0;     ///< four-character code: 'bltn', 'usb ', 'blue', …; 0 when unknown
    std::uint32_t inputChannels = 0;
    std::uint32_t outputChannels = 0;
    std::optional<double> nominalSampleRate;                     ///< Hz
    std::vector<std::pair<double, double>> availableSampleRates; ///< Hz, lowest and highest of each range

    bool operator==(const AudioDevice &) const = default;
};

/// Devices that usually carry their owner's name: their kind serves in place of a name.
enum class PersonalDevice { Bluetooth, AirPlay, Mobile };

/// By the transport of an audio device; none for every other.
constexpr std::optional<PersonalDevice> personalDevice(std::uint32_t transport)
{
    switch (transport) {
    case 0x626c7565: // 'blue'
    case 0x626c6561: // 'blea', Bluetooth Low Energy
        return PersonalDevice::Bluetooth;
    case 0x61697270: // 'airp'
        return PersonalDevice::AirPlay;
    case 0x63636170: // 'ccap', Continuity
    case 0x63637764: // 'ccwd', the same by cable
    case 0x6363776c: // 'ccwl', the same by radio
        return PersonalDevice::Mobile;
    default:
        return std::nullopt;
    }
}

/// The devices that programs use unless told otherwise, by id; 0 is none.
struct AudioDefaults
{
    std::uint32_t input = 0;
    std::uint32_t output = 0;

    bool operator==(const AudioDefaults &) const = default;
};

/// A sound card of ALSA.
struct SoundCard
{
    std::string name;
    bool playback = false;
    bool capture = false;

    bool operator==(const SoundCard &) const = default;
};

/// Cameras, microphones and speakers, by name and ability. No device is opened, nothing prompts.
class Capture
{
public:
    virtual ~Capture() = default;

    /// Whether cameras or microphones may be used. None where there is no such permission.
    virtual std::optional<AuthorizationStatus> authorization(CaptureKind kind) const = 0;

    /// Built-in and external cameras; a telephone that serves as a camera is none of them. None, here and
    /// below, when the system gives no list.
    virtual std::optional<std::vector<CameraReading>> cameras() const = 0;
    virtual std::optional<std::vector<AudioDevice>> audioDevices() const = 0;
    virtual std::optional<AudioDefaults> audioDefaults() const = 0;
    /// Linux alone.
    virtual std::optional<std::vector<SoundCard>> soundCards() const = 0;
};

} // namespace quillmark::platform
