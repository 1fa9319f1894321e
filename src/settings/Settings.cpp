// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quillmark::settings {

Settings::Settings(QObject *parent)
    : QObject(parent)
    , m_store((nameApplication(), QSettings::UserScope))
{
    // What an administrator set for all programs of the system is not about this one.
    m_store.setFallbacksEnabled(false);
}

Settings::Settings(const QString &file, QObject *parent)
    : QObject(parent)
    , m_store(file, QSettings::IniFormat)
{}

void Settings::nameApplication()
{
    using namespace Qt::StringLiterals;
    QCoreApplication::setOrganizationName(u"Quillmark"_s);
    QCoreApplication::setOrganizationDomain(u"tarnwick.com"_s);
    QCoreApplication::setApplicationName(u"Quillmark"_s);
}

void Settings::store(QLatin1StringView name, const QVariant &value)
{
    if (m_store.value(name) == value && m_store.contains(name) == value.isValid())
        return;
    keepPrivate();
    if (value.isValid())
        m_store.setValue(name, value);
    else
        m_store.remove(name);
    Q_EMIT changed(name);
}

/// A file that exists keeps its permissions when it is written, so that a new one has to begin with them.
void Settings::keepPrivate()
{
#ifndef Q_OS_MACOS // where the system keeps the user defaults
    const QFileInfo kept(m_store.fileName());
    if (kept.exists() || !QDir().mkpath(kept.path()))
        return;
    QFile file(kept.filePath());
    static_cast<void>(
        file.open(QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)); // saving will tell
#endif
}

} // namespace quillmark::settings
