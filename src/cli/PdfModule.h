// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Output.h"
#include "reports/Report.h"

#include <QByteArray>

#include <expected>

namespace quillmark::cli {

/// The report as a PDF document, on the paper that is usual where the user is. Loads what draws it, the
/// module quillmark-pdf, on first use. To be called on the main thread, in a process that has either no
/// application object of Qt’s or a QGuiApplication.
std::expected<QByteArray, Failure> pdfReport(const reports::Report &report);

} // namespace quillmark::cli
