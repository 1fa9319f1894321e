// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/Report.h"
#include "support/JsonSchema.h"
#include "support/Recordings.h"

#include <QRegularExpression>

// What a report says in each of its forms, as "title | label | value" for every row, in order. The form of a
// document is another reader of the same rows: it adds its function here.

namespace quillmark::support {

inline QString rowLine(const QString &title, const QString &label, const QString &value)
{
    return QStringList{title, label, value}.join(QStringLiteral(" | "));
}

inline QStringList rowsOf(const reports::Report &report)
{
    QStringList rows;
    for (const auto &section : report.sections) {
        for (const auto &item : section.items)
            rows += rowLine(section.title, item.label, item.value);
    }
    return rows;
}

/// A status in brackets belongs to the form.
inline QStringList rowsOfPlainText(const QString &text)
{
    static const QRegularExpression status(QStringLiteral(" \\[(Supported|Not supported|Warning)\\]$"));
    QStringList rows;
    QString title;
    for (auto line : text.split(u'\n')) {
        if (!line.startsWith(QStringLiteral("  "))) {
            title = line;
            continue;
        }
        line = line.mid(2).remove(status);
        const auto colon = line.indexOf(QStringLiteral(": "));
        rows += rowLine(title, line.left(colon), line.mid(colon + 2));
    }
    return rows;
}

/// From the tables, as a reader of Markdown sees them.
inline QStringList rowsOfMarkdown(const QString &text)
{
    static const QRegularExpression row(QStringLiteral("^\\| (.*?[^\\\\]) \\| (.*?[^\\\\]) \\| (.*) \\|$"));
    const auto read = [](QString cell) {
        static const QRegularExpression escape(QStringLiteral("\\\\(.)"));
        return cell.replace(escape, QStringLiteral("\\1"))
            .replace(QStringLiteral("&lt;"), QStringLiteral("<"))
            .replace(QStringLiteral("&amp;"), QStringLiteral("&"))
            .remove(QChar(0x2060));
    };
    QStringList rows;
    QString title;
    for (const auto &line : text.split(u'\n')) {
        if (line.startsWith(QStringLiteral("## ")))
            title = read(line.mid(3));
        const auto match = row.match(line);
        if (match.hasMatch() && match.captured(1) != QStringLiteral("Capability") &&
            match.captured(1) != QStringLiteral("---"))
            rows += rowLine(title, read(match.captured(1)), read(match.captured(2)));
    }
    return rows;
}

inline QStringList rowsOfJson(const QJsonObject &report)
{
    QStringList rows;
    for (const auto &section : report.value(QStringLiteral("sections")).toArray()) {
        for (const auto &item : section[QStringLiteral("items")].toArray())
            rows +=
                rowLine(section[QStringLiteral("title")].toString(), item[QStringLiteral("label")].toString(),
                        item[QStringLiteral("value")].toString());
    }
    return rows;
}

/// The object that a report in JSON is, once the project's schema has nothing against it.
inline QJsonObject validReport(const QByteArray &json)
{
    static JsonSchema schema(contents(sourcePath(QStringLiteral("docs/report-v1.schema.json"))));
    const auto document = QJsonDocument::fromJson(json);
    if (const auto errors = schema.errors(document.object()); !document.isObject() || !errors.isEmpty())
        qFatal("%s\n%s", qPrintable(errors.join(u'\n')), json.constData());
    return document.object();
}

} // namespace quillmark::support
