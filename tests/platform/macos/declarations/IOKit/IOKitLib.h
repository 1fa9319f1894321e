// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef UInt32 IOOptionBits;
typedef char io_name_t[128];
typedef char io_string_t[512];

#define IO_OBJECT_NULL ((io_object_t)0)
#define kIOServicePlane "IOService"

enum { kIORegistryIterateRecursively = 1, kIORegistryIterateParents = 2 };

CF_EXTERN_C_BEGIN

extern const mach_port_t kIOMainPortDefault API_AVAILABLE_MACOS(12.0);

CFMutableDictionaryRef IOServiceMatching(const char *name);
CFMutableDictionaryRef IOBSDNameMatching(mach_port_t mainPort, uint32_t options, const char *bsdName);
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching,
                                           io_iterator_t *existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);
boolean_t IOObjectConformsTo(io_object_t object, const io_name_t className);

io_registry_entry_t IORegistryEntryFromPath(mach_port_t mainPort, const io_string_t path);
kern_return_t IORegistryEntryGetParentEntry(io_registry_entry_t entry, const io_name_t plane,
                                            io_registry_entry_t *parent);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef *properties,
                                                CFAllocatorRef allocator, IOOptionBits options);
CFTypeRef IORegistryEntrySearchCFProperty(io_registry_entry_t entry, const io_name_t plane, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options);

CF_EXTERN_C_END
