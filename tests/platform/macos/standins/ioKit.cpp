// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "ioKit.h"

namespace standin {

std::vector<Entry> entries;
long kernelObjects = 0;

namespace {

constexpr io_object_t iterator = 1000;
std::vector<io_object_t> found;

const Entry &at(io_object_t name)
{
    return entries.at(name - 1);
}

std::vector<io_object_t> matching(CFDictionaryRef wanted)
{
    std::vector<io_object_t> names;
    for (io_object_t name = 1; name <= entries.size(); ++name) {
        const auto *className = CFDictionaryGetValue(wanted, CFSTR("IOProviderClass"));
        const auto *bsdName = CFDictionaryGetValue(wanted, CFSTR("BSD Name"));
        bool isWanted = className && characters(className) == at(name).className;
        if (bsdName && at(name).properties) {
            const CFDictionaryRef own = dictionary(at(name).properties());
            const auto *value = CFDictionaryGetValue(own, CFSTR("BSD Name"));
            isWanted = value && characters(value) == characters(bsdName);
            CFRelease(own);
        }
        if (isWanted)
            names.push_back(name);
    }
    CFRelease(wanted);
    return names;
}

io_object_t given(io_object_t name)
{
    kernelObjects += name != IO_OBJECT_NULL;
    return name;
}

} // namespace

} // namespace standin

using namespace standin;

extern "C" {

const mach_port_t kIOMainPortDefault = 0;

CFMutableDictionaryRef IOServiceMatching(const char *name)
{
    return dictionary({{"IOProviderClass", text(name)}});
}
CFMutableDictionaryRef IOBSDNameMatching(mach_port_t, uint32_t, const char *name)
{
    return dictionary({{"BSD Name", text(name)}});
}
io_service_t IOServiceGetMatchingService(mach_port_t, CFDictionaryRef wanted)
{
    const auto names = matching(wanted);
    return given(names.empty() ? IO_OBJECT_NULL : names.front());
}
kern_return_t IOServiceGetMatchingServices(mach_port_t, CFDictionaryRef wanted, io_iterator_t *existing)
{
    found = matching(wanted);
    *existing = given(iterator);
    return KERN_SUCCESS;
}
io_object_t IOIteratorNext(io_iterator_t)
{
    if (found.empty())
        return IO_OBJECT_NULL;
    const io_object_t name = found.front();
    found.erase(found.begin());
    return given(name);
}
kern_return_t IOObjectRelease(io_object_t)
{
    --kernelObjects;
    return KERN_SUCCESS;
}
boolean_t IOObjectConformsTo(io_object_t name, const io_name_t className)
{
    return at(name).className == className;
}

io_registry_entry_t IORegistryEntryFromPath(mach_port_t, const io_string_t path)
{
    for (io_object_t name = 1; name <= entries.size(); ++name) {
        if (at(name).path == path)
            return given(name);
    }
    return IO_OBJECT_NULL;
}
kern_return_t IORegistryEntryGetParentEntry(io_registry_entry_t name, const io_name_t,
                                            io_registry_entry_t *parent)
{
    *parent = given(at(name).parent);
    return *parent == IO_OBJECT_NULL ? KERN_FAILURE : KERN_SUCCESS;
}
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t name, CFMutableDictionaryRef *properties,
                                                CFAllocatorRef, IOOptionBits)
{
    if (!at(name).properties)
        return KERN_FAILURE;
    *properties = dictionary(at(name).properties());
    return KERN_SUCCESS;
}
CFTypeRef IORegistryEntrySearchCFProperty(io_registry_entry_t name, const io_name_t, CFStringRef key,
                                          CFAllocatorRef, IOOptionBits options)
{
    const bool goesUp = options == (kIORegistryIterateRecursively | kIORegistryIterateParents);
    for (; name != IO_OBJECT_NULL; name = goesUp ? at(name).parent : IO_OBJECT_NULL) {
        if (!at(name).properties)
            continue;
        const CFDictionaryRef own = dictionary(at(name).properties());
        const auto *value = CFDictionaryGetValue(own, key);
        if (value)
            retain(value);
        CFRelease(own);
        if (value)
            return value;
    }
    return nullptr;
}
}
