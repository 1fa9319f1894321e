// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace quillmark::language {

/// The text as searching compares it: without case, accents, and differences of width. A text contains a
/// search exactly when its folded form contains the folded search.
QString folded(const QString &text);

} // namespace quillmark::language
