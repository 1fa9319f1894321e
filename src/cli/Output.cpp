// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/Output.h"

namespace quillmark::cli {

void Output::write(const QString &text) const
{
    write(text.toUtf8());
}

void Output::write(const QByteArray &utf8) const
{
    out.write(utf8.constData(), utf8.size());
}

} // namespace quillmark::cli
