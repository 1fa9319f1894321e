// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/ReportDocument.h"

#include <QByteArray>
#include <QString>

namespace quillmark::reports {

/// The function that the module quillmark-pdf exports, with C linkage, as `drawPdfName`: draws the document
/// into `pdf`, or says in `failure` what is missing and returns false. Makes a QGuiApplication that needs no
/// display when there is no application object yet, for as long as it draws. To be called on the main thread.
///
/// Program and module are built together and share Qt’s libraries, so that its values cross as they are;
/// `version`, the caller’s applicationVersion(), is checked before anything else is read. The texts are the
/// caller’s: the module needs no translations.
using DrawPdf = bool(const QString &version, const ReportDocument &document, QByteArray &pdf,
                     QString &failure);

inline constexpr const char *drawPdfName = "quillmark_drawPdf";

} // namespace quillmark::reports
