// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/PropertyJson.h"

#include "platform/parseNumber.h"

#include <utility>

namespace quillmark::platform {

namespace {

std::optional<Bytes> parseHexadecimal(std::string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    Bytes bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t i = 0; i < text.size(); i += 2) {
        const auto byte = parseNumber<unsigned char>(text.substr(i, 2), 16);
        if (!byte)
            return std::nullopt;
        bytes.push_back(std::byte(*byte));
    }
    return bytes;
}

/// Builds the tree of values. The reader limits how deep they are nested, and so how deep this recurses.
class TreeBuilder
{
public:
    explicit TreeBuilder(std::string_view text)
        : m_reader(text)
    {}

    std::expected<PropertyMap, json::Error> build()
    {
        auto root = value(m_reader.next());
        if (root && m_reader.next() != json::Token::End)
            root.reset();
        if (!root)
            return std::unexpected(m_reader.error());
        if (auto *object = std::get_if<PropertyMap>(&root->value))
            return std::move(*object);
        return std::unexpected(json::Error{.reason = "this is no object", .line = 1, .column = 1});
    }

private:
    /// None after an error in the text.
    std::optional<PropertyValue> value(json::Token token)
    {
        switch (token) {
        case json::Token::BeginObject:
            return object();
        case json::Token::BeginArray:
            return array();
        case json::Token::String:
            return PropertyValue{std::string(m_reader.text())};
        case json::Token::Integer:
            return PropertyValue{m_reader.integer()};
        case json::Token::Double:
            return number();
        case json::Token::True:
        case json::Token::False:
            return PropertyValue{token == json::Token::True};
        case json::Token::Null:
            return PropertyValue{nullptr};
        default:
            return std::nullopt;
        }
    }

    /// A negative number that was printed as an unsigned one is still whole.
    PropertyValue number() const
    {
        const auto whole = parseNumber<std::uint64_t>(m_reader.text());
        return whole ? PropertyValue{*whole} : PropertyValue{m_reader.number()};
    }

    std::optional<PropertyValue> object()
    {
        PropertyMap members;
        for (auto token = m_reader.next(); token != json::Token::EndObject; token = m_reader.next()) {
            if (token != json::Token::Key)
                return std::nullopt;
            std::string name(m_reader.text());
            auto member = value(m_reader.next());
            if (!member)
                return std::nullopt;
            members.insert_or_assign(std::move(name), std::move(*member));
        }
        if (const auto *hexadecimal = find<std::string>(members, "hex"); hexadecimal && members.size() == 1) {
            if (auto bytes = parseHexadecimal(*hexadecimal))
                return PropertyValue{std::move(*bytes)};
        }
        return PropertyValue{std::move(members)};
    }

    std::optional<PropertyValue> array()
    {
        PropertyList elements;
        for (auto token = m_reader.next(); token != json::Token::EndArray; token = m_reader.next()) {
            auto element = value(token);
            if (!element)
                return std::nullopt;
            elements.push_back(std::move(*element));
        }
        return PropertyValue{std::move(elements)};
    }

    json::Reader m_reader;
};

struct PropertyWriter
{
    json::Writer &writer;

    void operator()(std::nullptr_t) const { writer.null(); }
    void operator()(bool value) const { writer.boolean(value); }
    void operator()(std::int64_t value) const { writer.integer(value); }
    void operator()(std::uint64_t value) const { writer.integer(value); }
    void operator()(double value) const { writer.number(value); }
    void operator()(const std::string &value) const { writer.string(value); }
    void operator()(const Bytes &value) const { writeBytes(writer, value); }
    void operator()(const PropertyMap &value) const { writeProperties(writer, value); }
    void operator()(const PropertyList &value) const
    {
        writer.beginArray();
        for (const auto &element : value)
            writeProperty(writer, element);
        writer.endArray();
    }
};

} // namespace

std::expected<PropertyMap, json::Error> parseProperties(std::string_view text)
{
    return TreeBuilder(text).build();
}

void writeProperty(json::Writer &writer, const PropertyValue &property)
{
    std::visit(PropertyWriter{writer}, property.value);
}

void writeProperties(json::Writer &writer, const PropertyMap &properties)
{
    writer.beginObject();
    for (const auto &[name, property] : properties) {
        writer.key(name);
        writeProperty(writer, property);
    }
    writer.endObject();
}

void writeBytes(json::Writer &writer, const Bytes &bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const auto byte : bytes) {
        text += digits[std::to_integer<unsigned>(byte) >> 4];
        text += digits[std::to_integer<unsigned>(byte) & 0xF];
    }
    writer.beginObject();
    writer.member("hex", std::string_view(text));
    writer.endObject();
}

} // namespace quillmark::platform
