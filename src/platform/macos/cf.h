// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include <CoreFoundation/CoreFoundation.h>

/// Core Foundation's objects: owned by a type, read by their own type. Whatever is asked for as a type that
/// it is not, counts as missing, and so does null.
namespace quillmark::platform::cf {

/// Owns one reference; may hold none.
template <typename Reference>
class Owner
{
public:
    Owner() = default;
    /// Takes over the reference that a function with Create or Copy in its name gave.
    explicit Owner(Reference object)
        : m_object(object)
    {}
    Owner(Owner &&other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {}
    Owner &operator=(Owner &&other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~Owner()
    {
        if (m_object)
            ::CFRelease(m_object);
    }

    explicit operator bool() const { return m_object != nullptr; }
    Reference get() const { return m_object; }

    /// For a function that hands out a reference through its argument. Must hold none.
    Reference *out() { return &m_object; }

private:
    Reference m_object = nullptr;
};

// The object itself, still owned by whoever owned it.
CFDictionaryRef dictionary(CFTypeRef object);
CFArrayRef array(CFTypeRef object);

std::optional<bool> boolean(CFTypeRef object);
/// None for a number with a fraction.
std::optional<std::int64_t> integer(CFTypeRef object);
/// In UTF-8; what has no such form becomes "?".
std::optional<std::string> text(CFTypeRef object);

/// The value under the key; null when there is none or no dictionary.
CFTypeRef find(CFDictionaryRef dictionary, CFStringRef key);

/// Null for a type that PropertyValue does not have. A number that CFNumber holds is never above 2⁶³ − 1: the
/// kernel's greater ones come as negative ones.
PropertyValue propertyValue(CFTypeRef object);
/// Without the entries whose key is no text.
PropertyMap propertyMap(CFDictionaryRef dictionary);

/// Of a four-character code or another number of 32 bits, whatever its sign.
std::optional<std::uint32_t> code(CFTypeRef object);

} // namespace quillmark::platform::cf
