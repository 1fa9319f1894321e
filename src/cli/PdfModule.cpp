// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/PdfModule.h"

namespace quillmark::cli {

std::expected<QByteArray, Failure> pdfReport(const reports::Report &)
{
    return std::unexpected(Failure{QStringLiteral("this build cannot write PDF")});
}

} // namespace quillmark::cli
