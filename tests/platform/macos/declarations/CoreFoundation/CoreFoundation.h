// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Availability.h>
#include <MacTypes.h>
#include <stddef.h>
#include <stdint.h>

#define CF_EXTERN_C_BEGIN extern "C" {
#define CF_EXTERN_C_END }
#define CF_ENUM(type, name) enum name : type
#if __has_attribute(objc_bridge) && defined(__OBJC__)
#define CF_BRIDGED_TYPE(type) __attribute__((objc_bridge(type)))
#else
#define CF_BRIDGED_TYPE(type)
#endif
// The attribute of the system's header of the same purpose, for versions of macOS alone.
#define API_AVAILABLE_MACOS(version) __attribute__((availability(macos, introduced = version)))

typedef unsigned long CFTypeID;
typedef unsigned long CFOptionFlags;
typedef signed long CFIndex;
typedef const void *CFTypeRef;
typedef UInt32 CFStringEncoding;
typedef CFIndex CFNumberType;

typedef const struct CF_BRIDGED_TYPE(id) __CFAllocator *CFAllocatorRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString *CFStringRef;
typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary *CFDictionaryRef;
typedef struct CF_BRIDGED_TYPE(NSMutableDictionary) __CFDictionary *CFMutableDictionaryRef;
typedef const struct CF_BRIDGED_TYPE(NSArray) __CFArray *CFArrayRef;
typedef const struct CF_BRIDGED_TYPE(NSData) __CFData *CFDataRef;
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFNumber *CFNumberRef;
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFBoolean *CFBooleanRef;
typedef const struct CF_BRIDGED_TYPE(NSURL) __CFURL *CFURLRef;
typedef struct CF_BRIDGED_TYPE(NSError) __CFError *CFErrorRef;

typedef struct
{
    CFIndex location;
    CFIndex length;
} CFRange;

typedef struct
{
    CFIndex version;
    const void *retain;
    const void *release;
    const void *copyDescription;
    const void *equal;
} CFArrayCallBacks;

typedef CF_ENUM(CFIndex, CFURLPathStyle) { kCFURLPOSIXPathStyle = 0 };

enum { kCFNumberSInt64Type = 4, kCFNumberDoubleType = 13 };
enum { kCFStringEncodingUTF8 = 0x08000100 };

CF_EXTERN_C_BEGIN

extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;

#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString(text))

void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

CFTypeID CFDictionaryGetTypeID(void);
CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary);
const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key);
void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void **keys, const void **values);

CFTypeID CFArrayGetTypeID(void);
CFArrayRef CFArrayCreate(CFAllocatorRef allocator, const void **values, CFIndex count,
                         const CFArrayCallBacks *callBacks);
CFIndex CFArrayGetCount(CFArrayRef array);
const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef string);
CFIndex CFStringGetBytes(CFStringRef string, CFRange range, CFStringEncoding encoding, UInt8 lossByte,
                         Boolean isExternalRepresentation, UInt8 *buffer, CFIndex bufferSize,
                         CFIndex *usedSize);

CFTypeID CFDataGetTypeID(void);
const UInt8 *CFDataGetBytePtr(CFDataRef data);
CFIndex CFDataGetLength(CFDataRef data);

CFTypeID CFNumberGetTypeID(void);
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value);

CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef boolean);

extern const CFStringRef kCFURLVolumeLocalizedNameKey;
extern const CFStringRef kCFURLVolumeTotalCapacityKey;
extern const CFStringRef kCFURLVolumeAvailableCapacityKey;
extern const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey API_AVAILABLE_MACOS(10.13);
extern const CFStringRef kCFURLVolumeSupportsFileCloningKey API_AVAILABLE_MACOS(10.12);
extern const CFStringRef kCFURLVolumeSupportsCaseSensitiveNamesKey;
CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef allocator, CFStringRef path, CFURLPathStyle style,
                                       Boolean isDirectory);
CFDictionaryRef CFURLCopyResourcePropertiesForKeys(CFURLRef url, CFArrayRef keys, CFErrorRef *error);

CFDictionaryRef CFBundleCopyInfoDictionaryInDirectory(CFURLRef bundle);

extern const CFStringRef kCFPreferencesAnyApplication;
CFTypeRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application);

CF_EXTERN_C_END
