// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Output.h"
#include "reports/Report.h"

#include <QByteArray>

#include <expected>

namespace quillmark::cli {

/// The report as a PDF document. Loads what draws it on first use.
std::expected<QByteArray, Failure> pdfReport(const reports::Report &report);

} // namespace quillmark::cli
