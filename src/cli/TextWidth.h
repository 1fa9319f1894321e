// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace quillmark::cli {

/// The character at that place, a pair of surrogates being one; moves on to the next.
char32_t takeCharacter(const QString &text, qsizetype &at);

/// The columns that the character takes on a terminal: 0, 1 or 2.
int characterWidth(char32_t character);

/// The columns that the text takes on a terminal: wide characters two, combining ones none.
int textWidth(const QString &text);

/// The text with spaces after it up to that many columns. One that runs from right to left is isolated from
/// what stands beside it, so that the columns stay in place on terminals that order such text.
QString padded(const QString &text, int columns);

/// The text in lines of at most that many columns, broken between words where possible.
QStringList wrapped(const QString &text, int columns);

/// The text without what would steer a terminal: control characters become U+FFFD, marks that reorder text
/// are dropped. One that is longer than `longest`, by default as much as anybody reads in a row, is cut.
QString printable(const QString &text, qsizetype longest = 500);

} // namespace quillmark::cli
