// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/PdfModule.h"

#include "cli/Module.h"
#include "reports/DrawPdf.h"

namespace quillmark::cli {

using namespace Qt::StringLiterals;

std::expected<QByteArray, Failure> pdfReport(const reports::Report &report)
{
    const auto function = resolve(u"quillmark-pdf"_s, reports::drawPdfName);
    if (!function)
        return std::unexpected(function.error());
    const auto draw = reinterpret_cast<reports::DrawPdf *>(*function);
    QByteArray pdf;
    QString failure;
    if (!draw(reports::applicationVersion(), reports::reportDocument(report), pdf, failure))
        return std::unexpected(Failure{u"no PDF document could be drawn: "_s + failure});
    return pdf;
}

} // namespace quillmark::cli
