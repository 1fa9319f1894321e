// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QDebug>
#include <QStringList>
#include <QTest>

#include <algorithm>

namespace quillmark::support {

/// "key | label | value | status", and " | volatile" for such a row.
inline QString line(const inspection::CapabilityItem &item)
{
    QStringList fields = {item.key.value_or(QStringLiteral("(no key)")), item.label, item.value,
                          rawValue(item.status)};
    if (item.isVolatile)
        fields += QStringLiteral("volatile");
    return fields.join(QStringLiteral(" | "));
}

/// A line for the section, "[key] title (symbol)", then one for each row.
inline QStringList lines(const inspection::CapabilitySection &section)
{
    QStringList result = {
        QStringLiteral("[%1] %2 (%3)").arg(section.key.value_or(QString()), section.title, section.symbol)};
    for (const auto &item : section.items)
        result += line(item);
    return result;
}

/// Whether the texts are the same line by line; says for each line that is not what was expected and what
/// came.
inline bool sameLines(const QStringList &actual, const QStringList &expected)
{
    for (qsizetype i = 0; i < std::max(actual.size(), expected.size()); ++i) {
        const auto at = [i](const QStringList &all) {
            return i < all.size() ? all.at(i) : QStringLiteral("(no line)");
        };
        if (at(actual) != at(expected))
            qInfo().noquote() << "line" << i + 1 << "\n  expected" << at(expected) << "\n  actual  "
                              << at(actual);
    }
    return actual == expected;
}

/// "key | value | status" for each row, with plain spaces before units.
inline QStringList rows(const inspection::CapabilitySection &section)
{
    QStringList result;
    for (const auto &item : section.items) {
        result += QStringList{*item.key, item.value, rawValue(item.status)}.join(QStringLiteral(" | "));
        result.last().replace(QChar::Nbsp, u' ');
    }
    return result;
}

/// Whether the section has these rows. A line "key absent" wants no row of that key; "*" before the first
/// line wants no others.
inline bool hasRows(const inspection::CapabilitySection &section, const QStringList &expected)
{
    const auto all = rows(section);
    auto wanted = expected;
    if (!wanted.isEmpty() && wanted.first().startsWith(u'*')) {
        wanted.first().remove(0, 1);
        return sameLines(all, wanted);
    }
    QStringList actual;
    for (const auto &line : wanted) {
        const auto key = line.section(u' ', 0, 0);
        const auto row =
            std::ranges::find_if(all, [&key](const QString &one) { return one.section(u' ', 0, 0) == key; });
        actual += row == all.end() ? key + QStringLiteral(" absent") : *row;
    }
    return sameLines(actual, wanted);
}

} // namespace quillmark::support
