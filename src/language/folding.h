// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

namespace quillmark::language {

/// The text as searching compares it: without case, accents, and differences of width. A text contains a
/// search exactly when its folded form contains the folded search.
QString folded(const QString &text);

/// A part of a text, in UTF-16 units.
struct TextRange
{
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype end() const { return start + length; }
    bool operator==(const TextRange &) const = default;
};

/// Where the text contains the search, which is folded and not empty, from the first place on without
/// overlap. The marks of a letter belong to it.
QList<TextRange> foldedMatches(const QString &text, const QString &foldedSearch);

} // namespace quillmark::language
