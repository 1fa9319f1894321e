// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/TerminalPage.h"
#include "reports/Report.h"

#include <QString>

namespace quillmark::cli {

/// The report as it is read on a terminal: headline, score, then each section's rows in aligned columns with
/// a mark and a word for the status.
QString terminalReport(const reports::Report &report, const TerminalStyle &style);

} // namespace quillmark::cli
