// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef UInt32 AudioObjectID;
typedef UInt32 AudioObjectPropertySelector;
typedef UInt32 AudioObjectPropertyScope;
typedef UInt32 AudioObjectPropertyElement;

struct AudioObjectPropertyAddress
{
    AudioObjectPropertySelector mSelector;
    AudioObjectPropertyScope mScope;
    AudioObjectPropertyElement mElement;
};
typedef struct AudioObjectPropertyAddress AudioObjectPropertyAddress;

struct AudioBuffer
{
    UInt32 mNumberChannels;
    UInt32 mDataByteSize;
    void *mData;
};
typedef struct AudioBuffer AudioBuffer;

struct AudioBufferList
{
    UInt32 mNumberBuffers;
    AudioBuffer mBuffers[1];
};
typedef struct AudioBufferList AudioBufferList;

struct AudioValueRange
{
    Float64 mMinimum;
    Float64 mMaximum;
};
typedef struct AudioValueRange AudioValueRange;

enum { kAudioObjectSystemObject = 1 };
CF_ENUM(AudioObjectPropertyScope, ){
    kAudioObjectPropertyScopeGlobal = 'glob',
    kAudioObjectPropertyScopeInput = 'inpt',
    kAudioObjectPropertyScopeOutput = 'outp',
};
CF_ENUM(AudioObjectPropertyElement, ){kAudioObjectPropertyElementMain = 0};
CF_ENUM(AudioObjectPropertySelector, ){
    kAudioObjectPropertyName = 'lnam',
    kAudioHardwarePropertyDevices = 'dev#',
    kAudioHardwarePropertyDefaultInputDevice = 'dIn ',
    kAudioHardwarePropertyDefaultOutputDevice = 'dOut',
    kAudioDevicePropertyTransportType = 'tran',
    kAudioDevicePropertyStreamConfiguration = 'slay',
    kAudioDevicePropertyNominalSampleRate = 'nsrt',
    kAudioDevicePropertyAvailableNominalSampleRates = 'nsr#',
};

CF_EXTERN_C_BEGIN

OSStatus AudioObjectGetPropertyDataSize(AudioObjectID object, const AudioObjectPropertyAddress *address,
                                        UInt32 qualifierSize, const void *qualifier, UInt32 *size);
OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress *address,
                                    UInt32 qualifierSize, const void *qualifier, UInt32 *size, void *data);

CF_EXTERN_C_END
