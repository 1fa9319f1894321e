// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "coreFoundation.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

// What the compiler makes of CFSTR("…") begins with this symbol's address.
extern "C" {
int __CFConstantStringClassReference[32];
}

namespace standin {

long references = 0;

namespace {

enum class Type : CFTypeID { Text = 7, Number, Boolean, Data, Array, Dictionary, Other };

struct Object
{
    const void *marker = &references;
    Type type = Type::Other;
    long count = 1;
    std::string bytes;
    long long integer = 0;
    double real = 0;
    bool isReal = false;
    std::vector<CFTypeRef> keys;
    std::vector<CFTypeRef> elements;
};

struct Constant
{
    const void *marker;
    long flags;
    const char *bytes;
    long length;
};

bool isConstant(CFTypeRef object)
{
    return *static_cast<const void *const *>(object) == __CFConstantStringClassReference;
}

Object &at(CFTypeRef object)
{
    auto &found = *const_cast<Object *>(static_cast<const Object *>(object));
    if (found.marker != &references || found.count < 1)
        std::abort(); // not an object, or one that was given back
    return found;
}

Object *made(Type type)
{
    ++references;
    auto *object = new Object;
    object->type = type;
    return object;
}

} // namespace

CFTypeRef text(std::string utf8)
{
    auto *object = made(Type::Text);
    object->bytes = std::move(utf8);
    return object;
}

CFTypeRef number(long long value)
{
    auto *object = made(Type::Number);
    object->integer = value;
    return object;
}

CFTypeRef real(double value)
{
    auto *object = made(Type::Number);
    object->real = value;
    object->isReal = true;
    return object;
}

CFTypeRef boolean(bool value)
{
    auto *object = made(Type::Boolean);
    object->integer = value;
    return object;
}

CFTypeRef data(std::string bytes)
{
    auto *object = made(Type::Data);
    object->bytes = std::move(bytes);
    return object;
}

CFArrayRef array(std::vector<CFTypeRef> elements)
{
    auto *object = made(Type::Array);
    object->elements = std::move(elements);
    return reinterpret_cast<CFArrayRef>(object);
}

CFMutableDictionaryRef dictionary(std::map<std::string, CFTypeRef> entries)
{
    auto *object = made(Type::Dictionary);
    for (auto &[key, value] : entries) {
        object->keys.push_back(text(key));
        object->elements.push_back(value);
    }
    return reinterpret_cast<CFMutableDictionaryRef>(object);
}

CFTypeRef other()
{
    return made(Type::Other);
}

CFTypeRef retain(CFTypeRef object)
{
    ++at(object).count;
    ++references;
    return object;
}

std::string characters(CFTypeRef string)
{
    if (!isConstant(string))
        return at(string).bytes;
    const auto *constant = static_cast<const Constant *>(string);
    return {constant->bytes, static_cast<std::size_t>(constant->length)};
}

} // namespace standin

using namespace standin;

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFArrayCallBacks kCFTypeArrayCallBacks = {};

void CFRelease(CFTypeRef object)
{
    if (isConstant(object))
        return;
    --references;
    Object &released = at(object);
    if (--released.count > 0)
        return;
    for (const auto *list : {&released.keys, &released.elements}) {
        for (CFTypeRef element : *list)
            CFRelease(element);
    }
    // Kept, with no reference, so that a later use is noticed.
}

CFTypeID CFGetTypeID(CFTypeRef object)
{
    return CFTypeID(isConstant(object) ? Type::Text : at(object).type);
}
CFTypeID CFStringGetTypeID()
{
    return CFTypeID(Type::Text);
}
CFTypeID CFNumberGetTypeID()
{
    return CFTypeID(Type::Number);
}
CFTypeID CFBooleanGetTypeID()
{
    return CFTypeID(Type::Boolean);
}
CFTypeID CFDataGetTypeID()
{
    return CFTypeID(Type::Data);
}
CFTypeID CFArrayGetTypeID()
{
    return CFTypeID(Type::Array);
}
CFTypeID CFDictionaryGetTypeID()
{
    return CFTypeID(Type::Dictionary);
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary)
{
    return CFArrayGetCount(CFArrayRef(dictionary));
}
const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key)
{
    const Object &object = at(dictionary);
    for (std::size_t i = 0; i < object.keys.size(); ++i) {
        if (characters(object.keys[i]) == characters(key))
            return object.elements[i];
    }
    return nullptr;
}
void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void **keys, const void **values)
{
    std::ranges::copy(at(dictionary).keys, keys);
    std::ranges::copy(at(dictionary).elements, values);
}

CFArrayRef CFArrayCreate(CFAllocatorRef, const void **values, CFIndex count, const CFArrayCallBacks *)
{
    std::vector<CFTypeRef> elements;
    for (CFIndex i = 0; i < count; ++i)
        elements.push_back(isConstant(values[i]) ? values[i] : retain(values[i]));
    return array(std::move(elements));
}
CFIndex CFArrayGetCount(CFArrayRef array)
{
    return static_cast<CFIndex>(at(array).elements.size());
}
const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index)
{
    return at(array).elements.at(static_cast<std::size_t>(index));
}

CFIndex CFStringGetLength(CFStringRef string)
{
    return static_cast<CFIndex>(characters(string).size());
}
CFIndex CFStringGetBytes(CFStringRef string, CFRange range, CFStringEncoding, UInt8, Boolean, UInt8 *buffer,
                         CFIndex size, CFIndex *used)
{
    const std::string bytes = characters(string);
    if (used)
        *used = range.length;
    if (buffer)
        std::memcpy(buffer, bytes.data(), static_cast<std::size_t>(std::min(size, range.length)));
    return range.length;
}

const UInt8 *CFDataGetBytePtr(CFDataRef data)
{
    return reinterpret_cast<const UInt8 *>(at(data).bytes.data());
}
CFIndex CFDataGetLength(CFDataRef data)
{
    return static_cast<CFIndex>(at(data).bytes.size());
}

Boolean CFNumberIsFloatType(CFNumberRef number)
{
    return at(number).isReal;
}
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value)
{
    const Object &object = at(number);
    if (object.type != Type::Number)
        std::abort();
    if (type == kCFNumberDoubleType)
        *static_cast<double *>(value) = object.isReal ? object.real : static_cast<double>(object.integer);
    else
        *static_cast<long long *>(value) =
            object.isReal ? static_cast<long long>(object.real) : object.integer;
    return true;
}
Boolean CFBooleanGetValue(CFBooleanRef boolean)
{
    if (at(boolean).type != Type::Boolean)
        std::abort();
    return at(boolean).integer != 0;
}
}
