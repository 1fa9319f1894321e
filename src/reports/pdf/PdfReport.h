// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Paper.h"
#include "reports/ReportDocument.h"

#include <QByteArray>
#include <QImage>
#include <QLocale>
#include <QString>

namespace quillmark::reports {

struct PdfOptions
{
    language::Paper paper = language::usualPaper(QLocale::system());
    QString fontFamily; ///< empty: the system’s
};

/// The report as a PDF document: designed pages whose text can be selected, with the report as JSON attached.
/// Always in light colours.
///
/// Needs a QGuiApplication, and at least one font. To be called on the main thread.
QByteArray pdf(const Report &report, const PdfOptions &options = {});
QByteArray pdf(const ReportDocument &document, const PdfOptions &options = {});

/// The first page as it will be, and how many there are.
struct PagePreview
{
    QImage image; ///< as wide as was asked
    qsizetype pages = 0;
};
PagePreview preview(const ReportDocument &document, int width, const PdfOptions &options = {});

} // namespace quillmark::reports
