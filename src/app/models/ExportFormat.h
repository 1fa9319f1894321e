// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/Report.h"

#include <QByteArray>
#include <QString>

#include <array>

namespace quillmark::app {

/// The kinds of file that an inspection can be saved as.
enum class ExportFormat { Pdf, Json, Markdown, PlainText };
inline constexpr std::array allExportFormats = {ExportFormat::Pdf, ExportFormat::Json, ExportFormat::Markdown,
                                                ExportFormat::PlainText};

/// The word for it in the settings: "pdf".
QString rawValue(ExportFormat format);
/// That of an unknown word: Pdf.
ExportFormat exportFormatFromRawValue(const QString &word);

/// Of files of this kind, without its point.
QString extension(ExportFormat format);
QString symbol(ExportFormat format);
QString title(ExportFormat format);
QString description(ExportFormat format);

/// What stands in the file. To be called on the main thread.
QByteArray contents(ExportFormat format, const reports::Report &report);

} // namespace quillmark::app
