// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"

#include <QString>

namespace quillmark::language {

/// The text in the language that a LanguageManager chose last, in English before that; the source where the
/// language has none. `count` chooses the plural form and stands for %n, in the digits of the language.
///
/// Unlike QCoreApplication::translate() it needs no application object, of which a program has but one, and
/// which costs the command line more than all its texts do. Any thread.
QString translated(const char *context, const char *source, const char *comment = nullptr, int count = -1);

/// What writes numbers and the like in the same language. Any thread.
Formats currentFormats();

} // namespace quillmark::language

/// Gives a class the function tr(), as Q_DECLARE_TR_FUNCTIONS does, for texts outside of the window.
/// script/update-translations tells lupdate of it.
#define QUILLMARK_TEXTS(context)                                                                             \
public:                                                                                                      \
    static QString tr(const char *source, const char *comment = nullptr, int count = -1)                     \
    {                                                                                                        \
        return quillmark::language::translated(#context, source, comment, count);                            \
    }                                                                                                        \
                                                                                                             \
private:
