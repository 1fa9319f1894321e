// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/texts.h"

#include "language/Catalogue.h"

#include <mutex>
#include <shared_mutex>
#include <utility>

namespace quillmark::language {

namespace {

struct Current
{
    std::shared_mutex mutex;
    std::shared_ptr<const Catalogue> catalogue = std::make_shared<Catalogue>(QStringLiteral("en"));
};

Current &current()
{
    static Current one;
    return one;
}

} // namespace

void setCatalogue(std::shared_ptr<const Catalogue> catalogue)
{
    const std::unique_lock lock(current().mutex);
    current().catalogue = std::move(catalogue);
}

Formats currentFormats()
{
    const std::shared_lock lock(current().mutex);
    return Formats(current().catalogue->language);
}

QString translated(const char *context, const char *source, const char *comment, int count)
{
    const std::shared_lock lock(current().mutex);
    const auto &catalogue = *current().catalogue;
    QString text;
    if (count >= 0 || !catalogue.hasPluralsAlone)
        text = catalogue.texts.translate(context, source, comment, count);
    if (text.isNull())
        text = QString::fromUtf8(source);
    if (count >= 0)
        text.replace(QLatin1StringView("%n"), Formats(catalogue.language).count(count));
    return text;
}

} // namespace quillmark::language
