// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/snapshotJson.h"

#include <array>
#include <optional>
#include <string_view>
#include <tuple>

namespace quillmark::history {

/// A member of a record's JSON object, and where the record has it.
template <typename Record, typename Value>
struct Field
{
    std::string_view name;
    Value Record::*place;

    /// Whether an object without the member is no such record.
    static constexpr bool isRequired = true;
};

template <typename Record, typename Value>
struct Field<Record, std::optional<Value>>
{
    std::string_view name;
    std::optional<Value> Record::*place;

    static constexpr bool isRequired = false;
};

template <typename Record, typename Value>
Field(const char *, Value Record::*) -> Field<Record, Value>;

/// All fields of a record as a tuple, in the order in which they are written.
template <typename Record>
struct Fields;

template <>
struct Fields<ScanSnapshot>
{
    static constexpr std::tuple all = {
        Field{"id", &ScanSnapshot::id},
        Field{"date", &ScanSnapshot::date},
        Field{"deviceName", &ScanSnapshot::deviceName},
        Field{"modelIdentifier", &ScanSnapshot::modelIdentifier},
        Field{"chip", &ScanSnapshot::chip},
        Field{"osVersion", &ScanSnapshot::osVersion},
        Field{"sections", &ScanSnapshot::sections},
        Field{"language", &ScanSnapshot::language},
    };
};

template <>
struct Fields<ScanSnapshot::Section>
{
    static constexpr std::tuple all = {
        Field{"title", &ScanSnapshot::Section::title},
        Field{"symbol", &ScanSnapshot::Section::symbol},
        Field{"items", &ScanSnapshot::Section::items},
        Field{"key", &ScanSnapshot::Section::key},
    };
};

template <>
struct Fields<ScanSnapshot::Item>
{
    static constexpr std::tuple all = {
        Field{"label", &ScanSnapshot::Item::label},   Field{"value", &ScanSnapshot::Item::value},
        Field{"status", &ScanSnapshot::Item::status}, Field{"isVolatile", &ScanSnapshot::Item::isVolatile},
        Field{"key", &ScanSnapshot::Item::key},
    };
};

// A digest is read from the same objects. What it does not keep has to be there all the same.

struct Unkept
{
};

struct CountedItem
{
    Unkept label;
    Unkept value;
    inspection::CapabilityStatus status{};
    bool isVolatile = false;
    std::optional<Unkept> key;
};

struct CountedSection
{
    Unkept title;
    Unkept symbol;
    inspection::StatusCounts *items; ///< to which its rows are added
    std::optional<Unkept> key;
};

template <>
struct Fields<ScanDigest>
{
    static constexpr std::tuple all = {
        Field{"id", &ScanDigest::id},
        Field{"date", &ScanDigest::date},
        Field{"deviceName", &ScanDigest::deviceName},
        Field{"modelIdentifier", &ScanDigest::modelIdentifier},
        Field{"chip", &ScanDigest::chip},
        Field{"osVersion", &ScanDigest::osVersion},
        Field{"sections", &ScanDigest::counts},
        Field{"language", &ScanDigest::language},
    };
};

template <>
struct Fields<CountedSection>
{
    static constexpr std::tuple all = {
        Field{"title", &CountedSection::title},
        Field{"symbol", &CountedSection::symbol},
        Field{"items", &CountedSection::items},
        Field{"key", &CountedSection::key},
    };
};

template <>
struct Fields<CountedItem>
{
    static constexpr std::tuple all = {
        Field{"label", &CountedItem::label},   Field{"value", &CountedItem::value},
        Field{"status", &CountedItem::status}, Field{"isVolatile", &CountedItem::isVolatile},
        Field{"key", &CountedItem::key},
    };
};

template <typename Record>
inline constexpr auto fieldNames = std::apply([](const auto &...field) { return std::array{field.name...}; },
                                              Fields<Record>::all);

template <typename Record>
inline constexpr auto requiredFields =
    std::apply([]<typename... AnyField>(const AnyField &...) { return std::array{AnyField::isRequired...}; },
               Fields<Record>::all);

/// Calls `action` with each field of the record.
template <typename Record, typename Action>
constexpr void forEachField(Action action)
{
    std::apply([&action](const auto &...field) { (action(field), ...); }, Fields<Record>::all);
}

} // namespace quillmark::history
