// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillmark::platform {

using Bytes = std::vector<std::byte>;

struct PropertyValue;
using PropertyList = std::vector<PropertyValue>;
using PropertyMap = std::map<std::string, PropertyValue, std::less<>>;

/// A value in a dictionary that the operating system fills: a power source, an entry of the I/O registry. The
/// system promises no types, so a reader takes what it expects and treats anything else as missing.
struct PropertyValue
{
    /// std::uint64_t only for a whole number that std::int64_t cannot hold.
    std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, Bytes, PropertyList, PropertyMap,
                 std::uint64_t>
        value;

    bool operator==(const PropertyValue &) const = default;
};

/// The value under `key` if there is one and it is a `T`, else null. A boolean is not a number, and the
/// reverse; a number with a fraction is not an integer.
template <typename T>
const T *find(const PropertyMap &properties, std::string_view key)
{
    const auto entry = properties.find(key);
    return entry == properties.end() ? nullptr : std::get_if<T>(&entry->second.value);
}

/// The same as a copy.
template <typename T>
std::optional<T> get(const PropertyMap &properties, std::string_view key)
{
    const T *found = find<T>(properties, key);
    return found ? std::optional<T>(*found) : std::nullopt;
}

} // namespace quillmark::platform
