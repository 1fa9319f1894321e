// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <cmath>

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
    {
        if (m_root.isEmpty())
            m_errors += QStringLiteral("the schema is no JSON object");
    }

    /// What is wrong with the value; empty when nothing is.
    QStringList errors(const QJsonValue &value)
    {
        check(value, m_root, QStringLiteral("report"));
        return std::exchange(m_errors, {});
    }

private:
    void check(const QJsonValue &value, const QJsonObject &schema, const QString &path)
    {
        static const QSet<QString> known = {
            QStringLiteral("$schema"),    QStringLiteral("$defs"),       QStringLiteral("$ref"),
            QStringLiteral("title"),      QStringLiteral("description"), QStringLiteral("type"),
            QStringLiteral("const"),      QStringLiteral("enum"),        QStringLiteral("required"),
            QStringLiteral("properties"), QStringLiteral("items"),       QStringLiteral("minItems"),
            QStringLiteral("minimum"),    QStringLiteral("maximum"),     QStringLiteral("minLength"),
            QStringLiteral("pattern"),    QStringLiteral("uniqueItems")};
        for (const auto &keyword : schema.keys())
            expect(known.contains(keyword), path,
                   QStringLiteral("is checked by the unknown keyword ") + keyword);
        const auto rule = [&schema](const char *keyword) { return schema.value(QLatin1StringView(keyword)); };

        if (schema.contains(QStringLiteral("$ref")))
            check(value, referenced(rule("$ref").toString()), path);
        if (schema.contains(QStringLiteral("type")))
            expect(hasType(value, rule("type").toString()), path,
                   QStringLiteral("is no ") + rule("type").toString());
        if (schema.contains(QStringLiteral("const")))
            expect(value == rule("const"), path, QStringLiteral("is not the constant"));
        if (schema.contains(QStringLiteral("enum")))
            expect(rule("enum").toArray().contains(value), path, QStringLiteral("is not one of the words"));
        if (value.isObject())
            checkObject(value.toObject(), schema, path);
        if (value.isArray())
            checkArray(value.toArray(), schema, path);
        if (value.isDouble()) {
            const auto number = value.toDouble();
            expect(number >= rule("minimum").toDouble(-HUGE_VAL) &&
                       number <= rule("maximum").toDouble(HUGE_VAL),
                   path, QStringLiteral("is out of range"));
        }
        if (value.isString()) {
            expect(value.toString().size() >= rule("minLength").toInt(), path,
                   QStringLiteral("is too short"));
            expect(QRegularExpression(rule("pattern").toString()).match(value.toString()).hasMatch(), path,
                   QStringLiteral("does not match the pattern"));
        }
    }

    void checkObject(const QJsonObject &object, const QJsonObject &schema, const QString &path)
    {
        for (const auto &name : schema.value(QStringLiteral("required")).toArray())
            expect(object.contains(name.toString()), path, QStringLiteral("lacks ") + name.toString());
        if (!schema.contains(QStringLiteral("properties")))
            return;
        const auto properties = schema.value(QStringLiteral("properties")).toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            expect(properties.contains(member.key()), path,
                   QStringLiteral("has the undescribed ") + member.key());
            check(*member, properties.value(member.key()).toObject(), path + u'.' + member.key());
        }
    }

    void checkArray(const QJsonArray &array, const QJsonObject &schema, const QString &path)
    {
        expect(array.size() >= schema.value(QStringLiteral("minItems")).toInt(), path,
               QStringLiteral("is too short"));
        const bool isSet = schema.value(QStringLiteral("uniqueItems")).toBool();
        for (qsizetype i = 0; i < array.size(); ++i) {
            check(array.at(i), schema.value(QStringLiteral("items")).toObject(),
                  path + u'.' + QString::number(i));
            for (qsizetype j = 0; isSet && j < i; ++j)
                expect(array.at(i) != array.at(j), path, QStringLiteral("holds the same twice"));
        }
    }

    /// Of "#/$defs/NAME".
    QJsonObject referenced(const QString &reference)
    {
        const auto found = m_root.value(QStringLiteral("$defs")).toObject().value(reference.section(u'/', 2));
        expect(reference.startsWith(QStringLiteral("#/$defs/")) && found.isObject(), reference,
               QStringLiteral("leads nowhere"));
        return found.toObject();
    }

    static bool hasType(const QJsonValue &value, const QString &type)
    {
        if (type == QStringLiteral("object"))
            return value.isObject();
        if (type == QStringLiteral("array"))
            return value.isArray();
        if (type == QStringLiteral("string"))
            return value.isString();
        if (type == QStringLiteral("boolean"))
            return value.isBool();
        if (type == QStringLiteral("integer"))
            return value.isDouble() && std::floor(value.toDouble()) == value.toDouble();
        return type == QStringLiteral("number") && value.isDouble();
    }

    void expect(bool isSo, const QString &path, const QString &complaint)
    {
        if (!isSo)
            m_errors += path + u' ' + complaint;
    }

    QJsonObject m_root;
    QStringList m_errors;
};

} // namespace quillmark::support
