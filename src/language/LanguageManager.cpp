// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/LanguageManager.h"

#include "language/Catalogue.h"
#include "language/texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <utility>

namespace quillmark::language {

using namespace Qt::StringLiterals;

namespace {

class Text
{
    QUILLMARK_TEXTS(Language)
};

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

QString primaryPart(const QString &tag)
{
    return tag.section(u'-', 0, 0).toLower();
}

} // namespace

LanguageManager::LanguageManager(const QStringList &preferred, QObject *parent)
    : QObject(parent)
    , m_systemLanguage(firstMatch(preferred))
    , m_formats(m_systemLanguage)
{
    install();
}

LanguageManager::LanguageManager(settings::Settings &settings, const QStringList &system, QObject *parent)
    : QObject(parent)
    , m_systemLanguage(firstMatch(system))
    , m_formats(firstMatch(QStringList{settings.value(languageKey)} + system))
{
    install();
    connect(&settings, &settings::Settings::changed, this, [this, &settings](const QString &key) {
        if (key == languageKey.name && !setLanguage(settings.value(languageKey)))
            setLanguage(m_systemLanguage);
    });
}

LanguageManager::~LanguageManager() = default;

QStringList LanguageManager::available()
{
    static const auto tags = QStringLiteral(QUILLMARK_LANGUAGES).split(u' ');
    return tags;
}

QString LanguageManager::match(const QString &tag)
{
    // "de_CH.UTF-8@euro" → "de-CH", then "de"
    QString wanted = tag.section(u'.', 0, 0).section(u'@', 0, 0);
    if (wanted.isEmpty())
        return {};
    wanted.replace(u'_', u'-');
    const auto languages = available();
    for (auto shorter = wanted; !shorter.isEmpty();
         shorter.truncate(qMax(shorter.lastIndexOf(u'-'), qsizetype(0)))) {
        for (const auto &language : languages) {
            if (language.compare(shorter, Qt::CaseInsensitive) == 0)
                return language;
        }
    }
    // Another country's, in the same script: "pt-PT" → "pt-BR", "zh-SG" → "zh-Hans", but nothing for "zh-TW".
    for (const auto &language : languages) {
        if (primaryPart(language) == primaryPart(wanted) &&
            QLocale(language).script() == QLocale(wanted).script())
            return language;
    }
    return {};
}

Qt::LayoutDirection LanguageManager::direction() const
{
    return QLocale(language()).textDirection();
}

bool LanguageManager::setLanguage(const QString &tag)
{
    const auto language = match(tag);
    if (language.isEmpty())
        return false;
    if (language != m_formats.language()) {
        m_formats = Formats(language);
        install();
        Q_EMIT languageChanged();
    }
    return true;
}

QString LanguageManager::nativeName(const QString &tag)
{
    return Formats(tag).languageName(tag);
}

QString LanguageManager::name(const QString &tag) const
{
    return m_formats.languageName(tag);
}

QString LanguageManager::systemChoiceName() const
{
    //: A choice among languages; %1 is the name of the system's.
    return Text::tr("Same as system (%1)").arg(nativeName(m_systemLanguage));
}

void LanguageManager::install()
{
    const auto before = std::exchange(m_catalogue, std::make_shared<Catalogue>(language()));
    setCatalogue(m_catalogue);
    if (!QCoreApplication::instance())
        return;
    const QLocale locale(language());
    QLocale::setDefault(locale);
    if (before)
        QCoreApplication::removeTranslator(before.get());
    // Qt's own texts, for its dialogs and buttons. Not all systems install them.
    m_textsOfQt = std::make_unique<QTranslator>();
    if (m_textsOfQt->load(locale, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(m_textsOfQt.get());
    QCoreApplication::installTranslator(m_catalogue.get());
}

QStringList systemLanguages()
{
    return QLocale::system().uiLanguages();
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
