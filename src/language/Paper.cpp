// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/Paper.h"

#include <unicode/ulocdata.h>

namespace quillmark::language {

Paper usualPaper(const QLocale &locale)
{
    // Asked of the place alone: of a language without one ICU would guess the place, American for English.
    if (locale.territory() == QLocale::AnyTerritory)
        return Paper::A4;
    const auto place = "und_" + QLocale::territoryToCode(locale.territory()).toLatin1();
    int32_t height = 0; // in millimetres
    int32_t width = 0;
    UErrorCode status = U_ZERO_ERROR;
    ulocdata_getPaperSize(place.constData(), &height, &width, &status);
    return U_SUCCESS(status) && height == 279 && width == 216 ? Paper::Letter : Paper::A4;
}

} // namespace quillmark::language
