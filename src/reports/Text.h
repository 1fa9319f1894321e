// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/texts.h"
#include "reports/Report.h"

namespace quillmark::reports {

/// The words of a report in the interface language of the moment.
class Text
{
    QUILLMARK_TEXTS(Report)
};

/// The text for one line of a report: line breaks become spaces, other control characters, which would steer
/// a terminal that the report is shown on or pasted into, U+FFFD.
QString singleLine(const QString &text);

/// "Capability score: 83% (20 of 24 rated capabilities supported)"; empty when nothing is rated.
QString scoreLine(const Report &report);

/// The hardware with the system that runs on it.
QString machineLine(const inspection::DeviceSummary &summary);

/// Stands in a report none of whose rows were asked for.
QString nothingMatches();

} // namespace quillmark::reports
