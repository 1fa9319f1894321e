// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

namespace quillmark::language {

enum class Paper { A4, Letter };

/// The paper that is usual where the locale is at home, by the paper sizes of the Unicode CLDR: US Letter in
/// the United States, Canada, Mexico and a dozen more, A4 anywhere else and where nothing is said.
Paper usualPaper(const QLocale &locale);

} // namespace quillmark::language
