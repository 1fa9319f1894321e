// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <string_view>
#include <vector>

namespace quillmark::platform {

/// The I/O registry of a Mac. Other systems have none and answer every question with an empty list.
class Registry
{
public:
    virtual ~Registry() = default;

    /// The properties of every service of the class ("AppleSmartBattery"), or of the one entry at a path
    /// ("IODeviceTree:/options"). A service without properties is an empty dictionary.
    virtual std::vector<PropertyMap> services(std::string_view classOrPath) const = 0;

    /// False where there is no registry to read, so that an empty list does not mean that a service is
    /// missing.
    virtual bool isReadable() const { return true; }
};

} // namespace quillmark::platform
