// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PropertyValue.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark::platform {

/// The first thing that is wrong with a recording, as a sentence that names the member. Empty while nothing
/// is.
struct Fault
{
    std::string text;
};

/// The members of one JSON object in a recording, read by type.
///
/// A member that is missing or null is absent. One of the wrong type is absent too and becomes the
/// recording's fault, so that a reader need not ask after each step: whoever began the reading asks once at
/// its end.
class Members
{
public:
    Members(const PropertyMap &object, std::string path, Fault &fault)
        : m_object(object)
        , m_path(std::move(path))
        , m_fault(&fault)
    {}

    /// True when the member stands there, be it null.
    bool has(std::string_view key) const { return m_object.contains(key); }
    const PropertyMap &object() const { return m_object; }

    std::optional<std::string> text(std::string_view key) const;
    std::optional<bool> boolean(std::string_view key) const;
    std::optional<double> number(std::string_view key) const;
    std::optional<std::int64_t> integer(std::string_view key, std::int64_t least, std::int64_t most) const;
    std::optional<std::uint32_t> fourCharacterCode(std::string_view key) const;

    template <typename Integer>
    std::optional<Integer> integer(std::string_view key) const
    {
        using Limits = std::numeric_limits<Integer>;
        constexpr auto most = std::in_range<std::int64_t>(Limits::max())
                                  ? static_cast<std::int64_t>(Limits::max())
                                  : std::numeric_limits<std::int64_t>::max();
        const auto value = integer(key, static_cast<std::int64_t>(Limits::min()), most);
        return value ? std::optional(static_cast<Integer>(*value)) : std::nullopt;
    }

    /// The place of the member's text in `words`.
    std::optional<std::size_t> word(std::string_view key, std::span<const std::string_view> words) const;

    std::optional<Members> members(std::string_view key) const;
    std::optional<std::vector<Members>> list(std::string_view key) const;
    std::optional<std::vector<PropertyMap>> dictionaries(std::string_view key) const;
    /// The elements of an array, whatever their types.
    const PropertyList *elements(std::string_view key) const;

    /// A required member that is missing is a fault.
    template <typename T>
    T required(std::optional<T> value, std::string_view key) const
    {
        if (!value)
            fail(key, "is missing");
        return std::move(value).value_or(T{});
    }

    /// Records that the member is at fault; `problem` goes on from its name: "must be a text, not a number".
    void fail(std::string_view key, std::string_view problem) const;
    void failType(std::string_view key, std::string_view expected) const;

private:
    const PropertyValue *value(std::string_view key) const;
    template <typename T>
    const T *typed(std::string_view key, std::string_view expected) const;
    std::string pathOf(std::string_view key) const;

    const PropertyMap &m_object;
    std::string m_path; ///< of this object within the recording; empty for the outermost
    Fault *m_fault;
};

} // namespace quillmark::platform
