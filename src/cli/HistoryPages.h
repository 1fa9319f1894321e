// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/TerminalPage.h"
#include "history/ScanSnapshot.h"
#include "history/snapshotJson.h"
#include "language/Formats.h"

#include <QString>

#include <vector>

// The saved scans as they are read on a terminal.

namespace quillmark::cli {

/// "November 22, 2026 at 8:35 PM": when the scan was taken, in local time.
QString dateOf(const history::ScanSnapshot &scan, const language::Formats &formats);

/// A line for each scan, newest first, with what it changed.
QString historyPage(const std::vector<history::StoredSnapshot> &scans, const language::Formats &formats,
                    const TerminalStyle &style);

/// The scan, row by row as an inspection is shown.
QString scanPage(const history::ScanSnapshot &scan, const language::Formats &formats,
                 const TerminalStyle &style);

/// What differs between two scans, by section.
QString comparisonPage(const history::ScanSnapshot &older, const history::ScanSnapshot &newer,
                       const language::Formats &formats, const TerminalStyle &style);

} // namespace quillmark::cli
