// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QDebug>
#include <QStringList>
#include <QTest>

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

} // namespace quillmark::support
