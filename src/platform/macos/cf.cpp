// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/cf.h"

#include <limits>
#include <vector>

namespace quillmark::platform::cf {

namespace {

template <typename Reference>
Reference as(CFTypeRef object, CFTypeID type)
{
    return object && ::CFGetTypeID(object) == type ? static_cast<Reference>(object) : nullptr;
}

PropertyValue numberValue(CFNumberRef number)
{
    if (const auto whole = integer(number))
        return {*whole};
    double real = 0;
    if (::CFNumberIsFloatType(number) && ::CFNumberGetValue(number, kCFNumberDoubleType, &real))
        return {real};
    return {nullptr};
}

PropertyList propertyList(CFArrayRef array)
{
    const CFIndex count = ::CFArrayGetCount(array);
    PropertyList list;
    list.reserve(static_cast<std::size_t>(count));
    for (CFIndex i = 0; i < count; ++i)
        list.push_back(propertyValue(::CFArrayGetValueAtIndex(array, i)));
    return list;
}

Bytes bytesOf(CFDataRef data)
{
    const auto *first = reinterpret_cast<const std::byte *>(::CFDataGetBytePtr(data));
    return {first, first + ::CFDataGetLength(data)};
}

} // namespace

CFDictionaryRef dictionary(CFTypeRef object)
{
    return as<CFDictionaryRef>(object, ::CFDictionaryGetTypeID());
}

CFArrayRef array(CFTypeRef object)
{
    return as<CFArrayRef>(object, ::CFArrayGetTypeID());
}

std::optional<bool> boolean(CFTypeRef object)
{
    const auto value = as<CFBooleanRef>(object, ::CFBooleanGetTypeID());
    return value ? std::optional(::CFBooleanGetValue(value) != 0) : std::nullopt;
}

std::optional<std::int64_t> integer(CFTypeRef object)
{
    const auto number = as<CFNumberRef>(object, ::CFNumberGetTypeID());
    std::int64_t value = 0;
    if (!number || ::CFNumberIsFloatType(number) || !::CFNumberGetValue(number, kCFNumberSInt64Type, &value))
        return std::nullopt;
    return value;
}

std::optional<std::string> text(CFTypeRef object)
{
    const auto string = as<CFStringRef>(object, ::CFStringGetTypeID());
    if (!string)
        return std::nullopt;
    const CFRange all = {0, ::CFStringGetLength(string)};
    CFIndex size = 0;
    ::CFStringGetBytes(string, all, kCFStringEncodingUTF8, '?', false, nullptr, 0, &size);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    ::CFStringGetBytes(string, all, kCFStringEncodingUTF8, '?', false,
                       reinterpret_cast<UInt8 *>(bytes.data()), size, nullptr);
    return bytes;
}

CFTypeRef find(CFDictionaryRef dictionary, CFStringRef key)
{
    return dictionary ? ::CFDictionaryGetValue(dictionary, key) : nullptr;
}

PropertyValue propertyValue(CFTypeRef object)
{
    if (const auto value = boolean(object))
        return {*value};
    if (const auto number = as<CFNumberRef>(object, ::CFNumberGetTypeID()))
        return numberValue(number);
    if (auto string = text(object))
        return {std::move(*string)};
    if (const auto data = as<CFDataRef>(object, ::CFDataGetTypeID()))
        return {bytesOf(data)};
    if (const auto list = array(object))
        return {propertyList(list)};
    if (const auto map = dictionary(object))
        return {propertyMap(map)};
    return {nullptr};
}

PropertyMap propertyMap(CFDictionaryRef dictionary)
{
    const auto count = static_cast<std::size_t>(::CFDictionaryGetCount(dictionary));
    std::vector<const void *> keys(count);
    std::vector<const void *> values(count);
    ::CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    PropertyMap map;
    for (std::size_t i = 0; i < count; ++i) {
        if (auto key = text(keys[i]))
            map.insert_or_assign(std::move(*key), propertyValue(values[i]));
    }
    return map;
}

std::optional<std::uint32_t> code(CFTypeRef object)
{
    const auto number = integer(object);
    if (!number || *number < std::numeric_limits<std::int32_t>::min() ||
        *number > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(*number);
}

} // namespace quillmark::platform::cf
