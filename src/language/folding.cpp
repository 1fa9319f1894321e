// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/folding.h"

namespace quillmark::language {

QString folded(const QString &text)
{
    QString result = text.normalized(QString::NormalizationForm_KD);
    result.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return result.toUpper().toCaseFolded(); // by way of capitals, as only there ß is SS
}

} // namespace quillmark::language
