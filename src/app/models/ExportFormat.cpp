// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/models/ExportFormat.h"

#include "reports/pdf/PdfReport.h"

#include <QCoreApplication>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(ExportFormat)
};

} // namespace

QString rawValue(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Pdf:
        return u"pdf"_s;
    case ExportFormat::Json:
        return u"json"_s;
    case ExportFormat::Markdown:
        return u"markdown"_s;
    case ExportFormat::PlainText:
        return u"text"_s;
    }
    return {};
}

ExportFormat exportFormatFromRawValue(const QString &word)
{
    const auto *const found = std::ranges::find(allExportFormats, word, &rawValue);
    return found == allExportFormats.end() ? ExportFormat::Pdf : *found;
}

QString extension(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Markdown:
        return u"md"_s;
    case ExportFormat::PlainText:
        return u"txt"_s;
    case ExportFormat::Pdf:
    case ExportFormat::Json:
        break;
    }
    return rawValue(format);
}

QString symbol(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Pdf:
        return u"doc.richtext"_s;
    case ExportFormat::Json:
        return u"curlybraces"_s;
    case ExportFormat::Markdown:
        return u"number"_s;
    case ExportFormat::PlainText:
        return u"doc.plaintext"_s;
    }
    return {};
}

QString title(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Pdf:
        return Text::tr("PDF report");
    case ExportFormat::Json:
        return Text::tr("JSON");
    case ExportFormat::Markdown:
        return Text::tr("Markdown");
    case ExportFormat::PlainText:
        return Text::tr("Plain text");
    }
    return {};
}

QString description(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Pdf:
        return Text::tr("Designed pages, ready to print or send");
    case ExportFormat::Json:
        return Text::tr("Every value, for scripts and tools");
    case ExportFormat::Markdown:
        return Text::tr("Tables for notes, wikis and issues");
    case ExportFormat::PlainText:
        return Text::tr("The same text as Copy as text");
    }
    return {};
}

QByteArray contents(ExportFormat format, const reports::Report &report)
{
    switch (format) {
    case ExportFormat::Pdf:
        return reports::pdf(report);
    case ExportFormat::Json:
        return reports::json(report);
    case ExportFormat::Markdown:
        return reports::markdown(report).toUtf8();
    case ExportFormat::PlainText:
        return reports::plainText(report).toUtf8();
    }
    return {};
}

} // namespace quillmark::app
