// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Texts from the net, made fit to be shown anywhere.

namespace quillmark::update {

/// HTML as lines of plain text: tags are taken out, entries of lists begin with "• ", and what is then left
/// is made harmless.
QString plainTextOf(const QString &html);

/// Without the characters that would steer a terminal or turn a line of text around, without space at the
/// ends of lines, with one empty line at most between others, and cut off after `longest` characters.
QString harmless(const QString &text, qsizetype longest = 4000);

} // namespace quillmark::update
