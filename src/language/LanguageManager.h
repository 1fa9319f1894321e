// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"

#include <QObject>
#include <QStringList>

namespace quillmark::language {

/// The language of the interface: which there are, which is chosen, and values written in it.
///
/// Texts go through Qt's translation (QCoreApplication::translate). Lives on the main thread.
class LanguageManager : public QObject
{
    Q_OBJECT

public:
    /// Begins with the first language of `preferred` (tags as "de-CH" or "de_CH.UTF-8") that there is, else
    /// English.
    explicit LanguageManager(const QStringList &preferred = {}, QObject *parent = nullptr);

    /// The tags of the languages that there are.
    static QStringList available();

    /// The available language that serves `tag`: the same one, or the one it is a variant of. Empty when
    /// there is none.
    static QString match(const QString &tag);

    /// The tag of the language in use; snapshots and reports carry it.
    const QString &language() const { return m_formats.language(); }
    const Formats &formats() const { return m_formats; }

    /// Changes nothing when the language is not available; returns whether it is.
    bool setLanguage(const QString &tag);

Q_SIGNALS:
    void languageChanged();

private:
    Formats m_formats;
};

/// The languages that the environment asks for, best first: the list in LANGUAGE, then the locale's own (the
/// first of LC_ALL, LC_MESSAGES and LANG that is set). Empty in the locale "C".
QStringList environmentLanguages();

} // namespace quillmark::language
