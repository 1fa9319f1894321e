// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/LanguageManager.h"

namespace quillmark::language {

namespace {

QString english()
{
    return QStringLiteral("en");
}

QString firstMatch(const QStringList &preferred)
{
    for (const auto &tag : preferred) {
        if (const auto match = LanguageManager::match(tag); !match.isEmpty())
            return match;
    }
    return english();
}

} // namespace

LanguageManager::LanguageManager(const QStringList &preferred, QObject *parent)
    : QObject(parent)
    , m_formats(firstMatch(preferred))
{}

QStringList LanguageManager::available()
{
    return {english()};
}

QString LanguageManager::match(const QString &tag)
{
    // "de_CH.UTF-8@euro" → "de-CH", then "de"
    QString wanted = tag.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    wanted.replace(QLatin1Char('_'), QLatin1Char('-'));
    const auto languages = available();
    while (!wanted.isEmpty()) {
        for (const auto &language : languages) {
            if (language.compare(wanted, Qt::CaseInsensitive) == 0)
                return language;
        }
        wanted.truncate(qMax(wanted.lastIndexOf(QLatin1Char('-')), qsizetype(0)));
    }
    return {};
}

bool LanguageManager::setLanguage(const QString &tag)
{
    const auto language = match(tag);
    if (language.isEmpty())
        return false;
    if (language != m_formats.language()) {
        m_formats = Formats(language);
        Q_EMIT languageChanged();
    }
    return true;
}

QStringList environmentLanguages()
{
    QString locale;
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.isEmpty())
            locale = qEnvironmentVariable(variable);
    }
    if (locale.isEmpty() || locale == u"POSIX" || locale.section(QLatin1Char('.'), 0, 0) == u"C")
        return {};
    return qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts) << locale;
}

} // namespace quillmark::language
