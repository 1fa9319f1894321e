// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/texts.h"

#include "language/Catalogue.h"

#include <mutex>
#include <shared_mutex>
#include <utility>

namespace quillmark::language {

using namespace Qt::StringLiterals;

namespace {

struct Current
{
    std::shared_mutex mutex;
    std::shared_ptr<const Catalogue> catalogue = std::make_shared<Catalogue>(u"en"_s);
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
    return current().catalogue->formats();
}

QString translated(const char *context, const char *source, const char *comment, int count)
{
    const std::shared_lock lock(current().mutex);
    const auto &catalogue = *current().catalogue;
    auto text = catalogue.translate(context, source, comment, count);
    if (text.isNull()) {
        text = QString::fromUtf8(source);
        if (count >= 0)
            text.replace("%n"_L1, catalogue.formats().count(count));
    }
    return text;
}

} // namespace quillmark::language
