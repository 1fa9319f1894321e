// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/Catalogue.h"

#include <QResource>

/// A static library's resources are linked in by being asked for; Qt wants this outside of namespaces.
static void loadCatalogues()
{
    Q_INIT_RESOURCE(catalogues);
}

namespace quillmark::language {

using namespace Qt::StringLiterals;

Catalogue::Catalogue(const QString &language)
    : m_formats(language)
    , m_hasPluralsAlone(language == "en"_L1)
{
    loadCatalogues();
    // By its bytes: by a name, Qt would look for it in a dozen places.
    const QResource file(u":/quillmark/translations/quillmark_%1.qm"_s.arg(language));
    [[maybe_unused]] const bool isThere = load(file.data(), static_cast<int>(file.size()));
    Q_ASSERT_X(isThere, "Catalogue", qPrintable(language));
}

QString Catalogue::translate(const char *context, const char *source, const char *comment, int count) const
{
    if (m_hasPluralsAlone && count < 0)
        return {};
    auto text = QTranslator::translate(context, source, comment, count);
    return count < 0 ? text : text.replace("%n"_L1, m_formats.count(count));
}

} // namespace quillmark::language
