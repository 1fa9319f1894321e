// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/Output.h"

#include "language/folding.h"
#include "language/texts.h"

#include <QStringList>

#include <algorithm>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

class Text
{
    QUILLMARK_TEXTS(Terminal)
};

} // namespace

bool Output::confirms(const QString &question) const
{
    //: What may be typed for yes, as shown in "[y/N]"; separated by commas.
    const auto words = Text::tr("y, yes").split(u',') << u"y"_s << u"yes"_s;
    const auto typed = language::folded(ask(question).trimmed());
    return std::ranges::any_of(
        words, [&](const QString &word) { return language::folded(word.trimmed()) == typed; });
}

void Output::write(const QString &text) const
{
    write(text.toUtf8());
}

void Output::write(const QByteArray &utf8) const
{
    out.write(utf8.constData(), utf8.size());
}

} // namespace quillmark::cli
