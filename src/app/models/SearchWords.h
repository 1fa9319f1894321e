// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace quillmark::app {

/// What else people call the things that rows and sections tell of, in the language of now: "ram" finds the
/// memory.
class SearchWords
{
public:
    SearchWords();

    /// Whether a word for the row, or for its section as a whole, begins with the search, which is folded. A
    /// single letter finds nothing: it would find too much.
    bool match(const QString &sectionKey, const QString &rowKey, const QString &foldedSearch) const;

private:
    QHash<QString, QStringList> m_words; ///< folded; by the key of a section or a row without its number
};

} // namespace quillmark::app
