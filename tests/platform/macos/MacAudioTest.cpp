// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "check.h"
#include "coreFoundation.h"
#include "platform/macos/audioDevices.h"

#include <cstring>
#include <map>
#include <utility>

#include <CoreAudio/CoreAudio.h>

namespace {

/// The bytes of each property by object, selector and scope.
std::map<std::pair<AudioObjectID, std::pair<UInt32, UInt32>>, std::string> properties;
std::map<AudioObjectID, std::string> names;

template <typename... Values>
std::string bytes(Values... values)
{
    std::string all;
    (all.append(reinterpret_cast<const char *>(&values), sizeof values), ...);
    return all;
}

void set(AudioObjectID object, UInt32 selector, std::string value, UInt32 scope = 'glob')
{
    properties[{object, {selector, scope}}] = std::move(value);
}

/// A list of one buffer for each number of channels.
template <typename... Channels>
std::string buffers(Channels... channels)
{
    std::string list = bytes(UInt64{sizeof...(channels)});
    (list.append(bytes(AudioBuffer{.mNumberChannels = UInt32(channels)})), ...);
    return list;
}

} // namespace

extern "C" {

OSStatus AudioObjectGetPropertyDataSize(AudioObjectID object, const AudioObjectPropertyAddress *address,
                                        UInt32, const void *, UInt32 *size)
{
    const auto found = properties.find({object, {address->mSelector, address->mScope}});
    if (found == properties.end() || address->mElement != 0)
        return -1;
    // A device has gone when the list is read after this.
    *size = static_cast<UInt32>(found->second.size()) + (address->mSelector == 'dev#' ? 4 : 0);
    return 0;
}
OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress *address, UInt32,
                                    const void *, UInt32 *size, void *data)
{
    if (address->mSelector == 'lnam' && names.contains(object)) {
        *static_cast<CFTypeRef *>(data) = standin::text(names[object]);
        return 0;
    }
    const auto found = properties.find({object, {address->mSelector, address->mScope}});
    if (found == properties.end() || *size < found->second.size())
        return -1;
    *size = static_cast<UInt32>(found->second.size());
    std::memcpy(data, found->second.data(), *size);
    return 0;
}
}

using namespace quillmark::platform;

int main()
{
    CHECK(!readAudioDevices() && !readAudioDefaults());

    set(1, 'dev#', bytes(UInt32{74}, UInt32{81}, UInt32{90}, UInt32{99}));
    set(1, 'dOut', bytes(UInt32{74}));
    CHECK(!readAudioDefaults());
    set(1, 'dIn ', bytes(UInt32{0}));
    CHECK(readAudioDefaults() == AudioDefaults{.input = 0, .output = 74});

    set(74, 'tran', bytes(UInt32{'bltn'}));
    names[74] = "MacBook Pro Speakers";
    set(74, 'slay', buffers(2, 2), 'outp');
    set(74, 'slay', buffers(), 'inpt');
    set(74, 'nsrt', bytes(48000.0));
    set(74, 'nsr#', bytes(44100.0, 44100.0, 48000.0, 96000.0));
    set(81, 'tran', bytes(UInt32{'blue'}));
    names[81] = "Ada’s headphones";
    set(81, 'slay', buffers(1), 'inpt');
    set(81, 'nsrt', bytes(16000.0f)); // not the size of a rate
    set(90, 'tran', bytes(UInt32{'usb '}));
    set(90, 'slay', "?", 'outp'); // too short to be a list
    // 99 has vanished.
    const std::vector<AudioDevice> expected = {{.id = 74,
                                                .name = "MacBook Pro Speakers",
                                                .transport = 'bltn',
                                                .outputChannels = 4,
                                                .nominalSampleRate = 48000,
                                                .availableSampleRates = {{44100, 44100}, {48000, 96000}}},
                                               {.id = 81, .transport = 'blue', .inputChannels = 1},
                                               {.id = 90, .transport = 'usb '}};
    CHECK(readAudioDevices() == expected);
    CHECK(standin::references == 0);
    return standin::result();
}
