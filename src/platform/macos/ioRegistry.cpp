// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/ioRegistry.h"

namespace quillmark::platform::io {

std::vector<Object> servicesOfClass(const std::string &name)
{
    std::vector<Object> services;
    const CFMutableDictionaryRef matching = ::IOServiceMatching(name.c_str());
    io_iterator_t found = IO_OBJECT_NULL;
    // It takes over the dictionary, also where it fails.
    if (!matching || ::IOServiceGetMatchingServices(kIOMainPortDefault, matching, &found) != KERN_SUCCESS)
        return services;
    const Object iterator(found);
    while (Object service = Object(::IOIteratorNext(iterator.name())))
        services.push_back(std::move(service));
    return services;
}

Object entryAtPath(const std::string &path)
{
    // The function copies it into a buffer of this size.
    if (path.size() >= sizeof(io_string_t))
        return {};
    return Object(::IORegistryEntryFromPath(kIOMainPortDefault, path.c_str()));
}

Object mediaNamed(const std::string &bsdName)
{
    const CFMutableDictionaryRef matching = ::IOBSDNameMatching(kIOMainPortDefault, 0, bsdName.c_str());
    return matching ? Object(::IOServiceGetMatchingService(kIOMainPortDefault, matching)) : Object();
}

PropertyMap properties(const Object &entry)
{
    cf::Owner<CFMutableDictionaryRef> all;
    if (::IORegistryEntryCreateCFProperties(entry.name(), all.out(), kCFAllocatorDefault, 0) !=
            KERN_SUCCESS ||
        !all)
        return {};
    return cf::propertyMap(all.get());
}

PropertyValue propertyUpwards(const Object &entry, CFStringRef key)
{
    const cf::Owner value(
        ::IORegistryEntrySearchCFProperty(entry.name(), kIOServicePlane, key, kCFAllocatorDefault,
                                          kIORegistryIterateRecursively | kIORegistryIterateParents));
    return cf::propertyValue(value.get());
}

} // namespace quillmark::platform::io
