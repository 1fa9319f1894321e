// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/macos/cf.h"

#include <string>
#include <utility>
#include <vector>

#include <IOKit/IOKitLib.h>

/// The I/O registry's entries, owned by a type.
namespace quillmark::platform::io {

/// Owns one reference to an object of the kernel's; may hold none.
class Object
{
public:
    Object() = default;
    explicit Object(io_object_t name)
        : m_name(name)
    {}
    Object(Object &&other) noexcept
        : m_name(std::exchange(other.m_name, IO_OBJECT_NULL))
    {}
    Object &operator=(Object &&other) noexcept
    {
        std::swap(m_name, other.m_name);
        return *this;
    }
    ~Object()
    {
        if (m_name != IO_OBJECT_NULL)
            ::IOObjectRelease(m_name);
    }

    explicit operator bool() const { return m_name != IO_OBJECT_NULL; }
    io_object_t name() const { return m_name; }

private:
    io_object_t m_name = IO_OBJECT_NULL;
};

/// Every service of the class and of the classes derived from it. Empty when there is none.
std::vector<Object> servicesOfClass(const std::string &name);

/// The entry at a path with its plane, "IODeviceTree:/options".
Object entryAtPath(const std::string &path);

/// The disk or the part of one that /dev calls so: "disk3s1". The name has no folder before it.
Object mediaNamed(const std::string &bsdName);

/// All properties; empty when there are none.
PropertyMap properties(const Object &entry);

/// The property of the entry itself or, where that lacks it, of the nearest one above.
PropertyValue propertyUpwards(const Object &entry, CFStringRef key);

} // namespace quillmark::platform::io
