// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <optional>
#include <string_view>

namespace quillmark::platform {

/// The kernel's named values, under the names of macOS's sysctl(3): "hw.model", "hw.physicalcpu", …
///
/// Another system answers the names whose fact it knows too, in the same form, and no others.
class KernelValues
{
public:
    virtual ~KernelValues() = default;

    /// The bytes of the value as the kernel holds them, in this machine's byte order: a number is 4 or 8
    /// bytes, a text ends with a zero byte. None when there is no such name here, or the kernel does not
    /// answer.
    virtual std::optional<Bytes> read(std::string_view name) const = 0;
};

} // namespace quillmark::platform
