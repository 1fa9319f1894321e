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

QList<TextRange> foldedMatches(const QString &text, const QString &foldedSearch)
{
    // A letter of the text may fold to several, or to none.
    QString all;
    QList<TextRange> letters; ///< of the text, for each unit of its folded form
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
        const auto letter = folded(text.sliced(at, length));
        if (letter.isEmpty() && !letters.isEmpty())
            letters.back().length = at + length - letters.back().start;
        all += letter;
        letters.resize(all.size(), {at, length});
        at += length;
    }
    QList<TextRange> matches;
    for (qsizetype at = 0; (at = all.indexOf(foldedSearch, at)) >= 0; at += foldedSearch.size()) {
        const auto start = letters[at].start;
        matches += {start, letters[at + foldedSearch.size() - 1].end() - start};
    }
    return matches;
}

} // namespace quillmark::language
