// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"
#include "settings/Settings.h"

#include <QObject>
#include <QStringList>

#include <memory>

class QTranslator;

namespace quillmark::language {

class Catalogue;

/// The tag of the language that the user has chosen; empty: as the system.
inline const settings::Key<QString> languageKey{.name = QLatin1StringView("language")};

/// The language of the interface: which there are, which is chosen, and texts and values in it.
///
/// The manager that was made last gives the language in which texts are made from then on: those of this
/// program's own layers (texts.h) and, where there is an application object, those of Qt (tr() of widgets,
/// standard dialogs). Lives on the main thread, and no longer than an application object that it began with.
class LanguageManager : public QObject
{
    Q_OBJECT

public:
    /// Begins with the first language of `preferred` (tags as "de-CH" or "de_CH.UTF-8") that there is, else
    /// English.
    explicit LanguageManager(const QStringList &preferred = {}, QObject *parent = nullptr);
    /// Follows what is chosen in the settings, from now on. Where nothing is, the first language of `system`
    /// that there is.
    LanguageManager(settings::Settings &settings, const QStringList &system, QObject *parent = nullptr);
    ~LanguageManager() override;

    /// The tags of the languages that there are.
    static QStringList available();

    /// The available language that serves `tag`: the same one, or the one it is a variant of. Empty when
    /// there is none.
    static QString match(const QString &tag);

    /// The tag of the language in use; snapshots and reports carry it.
    const QString &language() const { return m_formats.language(); }
    const Formats &formats() const { return m_formats; }
    /// In which it is written.
    Qt::LayoutDirection direction() const;

    /// Changes nothing when the language is not available; returns whether it is.
    bool setLanguage(const QString &tag);

    /// "Deutsch", "简体中文": the language's own name for itself.
    static QString nativeName(const QString &tag);
    /// "German": its name in the language in use.
    QString name(const QString &tag) const;
    /// "Same as system (Deutsch)": the choice of none.
    QString systemChoiceName() const;

Q_SIGNALS:
    /// The texts are those of the language by now. Widgets are sent QEvent::LanguageChange beside it.
    void languageChanged();

private:
    void install();

    QString m_systemLanguage;
    Formats m_formats;
    std::shared_ptr<Catalogue> m_catalogue;
    std::unique_ptr<QTranslator> m_textsOfQt; ///< where there is an application object
};

/// The languages of the system's own settings, best first; where it has none, those of the environment.
QStringList systemLanguages();

/// The languages that the environment asks for, best first: the list in LANGUAGE, then the locale's own (the
/// first of LC_ALL, LC_MESSAGES and LANG that is set). Empty in the locale "C".
QStringList environmentLanguages();

} // namespace quillmark::language
