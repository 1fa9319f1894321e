// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <utility>

namespace quillmark::support {

/// Checks values against a JSON Schema (draft 2020-12), of which it knows what the project's schemas use; any
/// other keyword is an error rather than a check that silently does not take place. Objects may have the
/// members that the schema describes and no others: a schema leaves room for more to come, this program's own
/// output must be in it.
class JsonSchema
{
public:
    explicit JsonSchema(const QByteArray &schema)
        : m_root(QJsonDocument::fromJson(schema).object())
    {}

    /// What is wrong with the value; empty when nothing is.
    QStringList errors(const QJsonValue &value)
    {
        expect(!m_root.isEmpty(), QStringLiteral("the schema"), "is no JSON object");
        check(value, m_root, QStringLiteral("the value"));
        return std::exchange(m_errors, {});
    }

private:
    void check(const QJsonValue &value, const QJsonObject &schema, const QString &path)
    {
        for (auto rule = schema.begin(); rule != schema.end(); ++rule) {
            const auto keyword = rule.key().toLatin1();
            if (keyword == "$ref")
                check(value, referenced(rule->toString()), path);
            else if (keyword == "type")
                expect(hasType(value, rule->toString().toLatin1()), path, "has another type");
            else if (keyword == "const")
                expect(value == *rule, path, "is not the constant");
            else if (keyword == "enum")
                expect(rule->toArray().contains(value), path, "is not one of the words");
            else if (keyword == "minimum" || keyword == "maximum")
                expect(keyword == "minimum" ? value.toDouble() >= rule->toDouble()
                                            : value.toDouble() <= rule->toDouble(),
                       path, "is out of range");
            else if (keyword == "minLength")
                expect(value.toString().size() >= rule->toInt(), path, "is too short");
            else if (keyword == "pattern")
                expect(value.toString().contains(QRegularExpression(rule->toString())), path,
                       "looks otherwise");
            else if (keyword == "required")
                checkRequired(value.toObject(), rule->toArray(), path);
            else if (keyword == "properties")
                checkProperties(value.toObject(), rule->toObject(), path);
            else if (keyword == "items")
                checkItems(value.toArray(), rule->toObject(), path);
            else if (keyword == "minItems")
                expect(value.toArray().size() >= rule->toInt(), path, "has too few elements");
            else if (keyword == "uniqueItems")
                checkUnique(value.toArray(), path);
            else
                expect(keyword == "$schema" || keyword == "$defs" || keyword == "title" ||
                           keyword == "description",
                       path, "is checked by the unknown keyword " + keyword);
        }
    }

    void checkRequired(const QJsonObject &object, const QJsonArray &names, const QString &path)
    {
        for (const auto &name : names)
            expect(object.contains(name.toString()), path, "lacks " + name.toString().toLatin1());
    }

    void checkProperties(const QJsonObject &object, const QJsonObject &properties, const QString &path)
    {
        for (auto member = object.begin(); member != object.end(); ++member) {
            expect(properties.contains(member.key()), path, "has the undescribed " + member.key().toLatin1());
            check(*member, properties.value(member.key()).toObject(), path + u'.' + member.key());
        }
    }

    void checkItems(const QJsonArray &array, const QJsonObject &schema, const QString &path)
    {
        for (qsizetype i = 0; i < array.size(); ++i)
            check(array.at(i), schema, path + u'.' + QString::number(i));
    }

    void checkUnique(const QJsonArray &array, const QString &path)
    {
        for (qsizetype i = 0; i < array.size(); ++i) {
            for (qsizetype j = 0; j < i; ++j)
                expect(array.at(i) != array.at(j), path, "holds the same twice");
        }
    }

    /// Of "#/$defs/NAME".
    QJsonObject referenced(const QString &reference)
    {
        const auto found = m_root.value(QStringLiteral("$defs")).toObject().value(reference.section(u'/', 2));
        expect(found.isObject(), reference, "leads nowhere");
        return found.toObject();
    }

    static bool hasType(const QJsonValue &value, const QByteArray &type)
    {
        return (type == "object" && value.isObject()) || (type == "array" && value.isArray()) ||
               (type == "string" && value.isString()) || (type == "boolean" && value.isBool()) ||
               (type == "number" && value.isDouble()) ||
               (type == "integer" && value.isDouble() && std::floor(value.toDouble()) == value.toDouble());
    }

    void expect(bool isSo, const QString &path, const QByteArray &complaint)
    {
        if (!isSo)
            m_errors += path + u' ' + QString::fromLatin1(complaint);
    }

    QJsonObject m_root;
    QStringList m_errors;
};

} // namespace quillmark::support
