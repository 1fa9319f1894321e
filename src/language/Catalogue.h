// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"

#include <QString>
#include <QTranslator>

#include <memory>

namespace quillmark::language {

/// The texts of one language, as they lie in the program. What %n stands for is in them by then, in the
/// digits of the language, where Qt would put its own.
class Catalogue final : public QTranslator
{
public:
    explicit Catalogue(const QString &language);

    const Formats &formats() const { return m_formats; }

    /// Null where there is none: the source serves.
    QString translate(const char *context, const char *source, const char *comment, int count) const override;

private:
    Formats m_formats;
    bool m_hasPluralsAlone; ///< the English one: its other texts are the sources
};

/// Makes it the one that translated() reads.
void setCatalogue(std::shared_ptr<const Catalogue> catalogue);

} // namespace quillmark::language
