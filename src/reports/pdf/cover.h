// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "reports/ReportDocument.h"
#include "reports/pdf/Block.h"
#include "reports/pdf/Sheet.h"

namespace quillmark::reports {

/// How closely the first page is set.
struct CoverSpacing
{
    qreal aboveName;
    qreal abovePanel;
    qreal ring; ///< diameter
    qreal panelPadding;
    qreal aboveFacts;
    qreal aboveTables; ///< the first one
    qreal betweenTables;
    qreal row;         ///< least height in the tables
    int mostLines = 0; ///< of a row there; 0: as many as it takes
};

inline constexpr CoverSpacing airy{46, 27, 104, 22, 24, 28, 20, 19};
/// Lets a full list of what is worth a look and the list of contents stand on one A4 page,
inline constexpr CoverSpacing tight{16, 16, 88, 18, 16, 20, 14, 18};
/// even where texts are long: they stand unabridged in their sections.
inline constexpr CoverSpacing abridged{16, 16, 88, 18, 16, 20, 14, 18, 1};

/// What stands above the tables of the first page: whose report, the machine, its score, three facts.
Group headline(const ReportDocument &document, Typesetter &typesetter, const Sheet &sheet,
               const CoverSpacing &spacing);

} // namespace quillmark::reports
