// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace quillmark::reports {

/// The PDF file with its author and language named, which QPdfWriter cannot: as an update at its end (ISO
/// 32000-1, 7.5.6). `author` and `language`, a BCP 47 tag, are ASCII. A file of another structure than
/// QPdfWriter’s, with a table of cross-references, comes back as it is.
QByteArray describedPdf(const QByteArray &pdf, const QByteArray &author, const QByteArray &language);

} // namespace quillmark::reports
