// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/ReportDocument.h"
#include "reports/pdf/Block.h"
#include "reports/pdf/Sheet.h"

#include <memory>
#include <vector>

namespace quillmark::reports {

/// How the rows of tables share the width of a page: mark, label, value, where it comes from, status.
struct TableMetrics
{
    qreal left;
    qreal right;
    qreal wordWidth;   ///< of the widest status word
    qreal row;         ///< least height
    qreal tallest;     ///< a row taller than this goes on in another one
    int mostLines = 0; ///< of a row, the last ending with an ellipsis; 0: as many as it takes
};

/// The table with its heading.
Group table(const ReportDocument::Table &table, Typesetter &typesetter, const TableMetrics &metrics);

/// The list of the sections, in two columns. `pages` holds the number of each one's page by the time of
/// painting.
Group contents(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet, qreal row,
               const std::shared_ptr<std::vector<int>> &pages);

/// A text that stands alone.
Group note(const QString &text, const TextStyle &style, Typesetter &typesetter, const Sheet &sheet);

/// The width of the widest word for a status in the report’s tables.
qreal widestWord(const ReportDocument &document, Typesetter &typesetter);

} // namespace quillmark::reports
