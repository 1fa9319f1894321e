// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTranslator>

#include <memory>

namespace quillmark::language {

/// The texts of one language, as they lie in the program.
struct Catalogue
{
    explicit Catalogue(const QString &tag);

    QString language;
    bool hasPluralsAlone; ///< the English one: its other texts are the sources
    QTranslator texts; ///< those of this program
    QTranslator ofQt;  ///< for its dialogs and buttons, where they are installed; else empty
};

/// Makes it the one that translated() reads.
void setCatalogue(std::shared_ptr<const Catalogue> catalogue);

} // namespace quillmark::language
