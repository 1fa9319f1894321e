// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Members.h"

#include <algorithm>
#include <array>

namespace quillmark::platform {

namespace {

std::string_view typeName(const PropertyValue &property)
{
    constexpr std::array<std::string_view, 9> names = {
        "null",  "true or false", "a number",  "a number with a fraction",  "a text",
        "bytes", "an array",      "an object", "a number that is too large"};
    return names[property.value.index()];
}

} // namespace

const PropertyValue *Members::value(std::string_view key) const
{
    const auto member = m_object.find(key);
    if (member == m_object.end() || std::holds_alternative<std::nullptr_t>(member->second.value))
        return nullptr;
    return &member->second;
}

template <typename T>
const T *Members::typed(std::string_view key, std::string_view expected) const
{
    const PropertyValue *property = value(key);
    if (!property)
        return nullptr;
    const T *found = std::get_if<T>(&property->value);
    if (!found)
        failType(key, expected);
    return found;
}

std::optional<std::string> Members::text(std::string_view key) const
{
    const auto *found = typed<std::string>(key, "a text");
    return found ? std::optional(*found) : std::nullopt;
}

std::optional<bool> Members::boolean(std::string_view key) const
{
    const auto *found = typed<bool>(key, "true or false");
    return found ? std::optional(*found) : std::nullopt;
}

std::optional<double> Members::number(std::string_view key) const
{
    if (const auto whole = get<std::int64_t>(m_object, key))
        return static_cast<double>(*whole);
    if (const auto large = get<std::uint64_t>(m_object, key))
        return static_cast<double>(*large);
    const auto *found = typed<double>(key, "a number");
    return found ? std::optional(*found) : std::nullopt;
}

std::optional<std::int64_t> Members::integer(std::string_view key, std::int64_t least,
                                             std::int64_t most) const
{
    const auto *found = typed<std::int64_t>(key, "a whole number");
    if (!found)
        return std::nullopt;
    if (*found < least || *found > most) {
        fail(key, "must be from " + std::to_string(least) + " to " + std::to_string(most));
        return std::nullopt;
    }
    return *found;
}

std::optional<std::uint32_t> Members::fourCharacterCode(std::string_view key) const
{
    const auto code = text(key);
    if (!code)
        return std::nullopt;
    if (code->size() != 4) {
        fail(key, "must be a code of four characters");
        return std::nullopt;
    }
    std::uint32_t number = 0;
    for (const char c : *code)
        number = number << 8 | static_cast<unsigned char>(c);
    return number;
}

std::optional<std::size_t> Members::word(std::string_view key, std::span<const std::string_view> words) const
{
    const auto found = text(key);
    if (!found)
        return std::nullopt;
    const auto place = std::ranges::find(words, *found);
    if (place != words.end())
        return static_cast<std::size_t>(place - words.begin());
    std::string choices;
    for (const auto word : words)
        choices.append(choices.empty() ? "\"" : ", \"").append(word).append("\"");
    fail(key, "must be one of " + choices);
    return std::nullopt;
}

std::optional<Members> Members::members(std::string_view key) const
{
    const auto *found = typed<PropertyMap>(key, "an object");
    return found ? std::optional(Members(*found, pathOf(key), *m_fault)) : std::nullopt;
}

const PropertyList *Members::elements(std::string_view key) const
{
    return typed<PropertyList>(key, "an array");
}

std::optional<std::vector<Members>> Members::list(std::string_view key) const
{
    const auto *array = elements(key);
    if (!array)
        return std::nullopt;
    std::vector<Members> objects;
    for (const auto &element : *array) {
        const std::string place = std::string(key) + '[' + std::to_string(objects.size()) + ']';
        const auto *object = std::get_if<PropertyMap>(&element.value);
        if (!object) {
            fail(place, std::string("must be an object, not ").append(typeName(element)));
            return std::nullopt;
        }
        objects.emplace_back(*object, pathOf(place), *m_fault);
    }
    return objects;
}

std::optional<std::vector<PropertyMap>> Members::dictionaries(std::string_view key) const
{
    const auto objects = list(key);
    if (!objects)
        return std::nullopt;
    std::vector<PropertyMap> copies;
    for (const auto &object : *objects)
        copies.push_back(object.object());
    return copies;
}

void Members::fail(std::string_view key, std::string_view problem) const
{
    if (m_fault->text.empty())
        m_fault->text = '"' + pathOf(key) + "\" " + std::string(problem);
}

void Members::failType(std::string_view key, std::string_view expected) const
{
    if (const PropertyValue *property = value(key))
        fail(key, std::string("must be ").append(expected).append(", not ").append(typeName(*property)));
}

std::string Members::pathOf(std::string_view key) const
{
    std::string path = m_path;
    if (!path.empty())
        path += '.';
    return path.append(key);
}

} // namespace quillmark::platform
