// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include <QCoreApplication>

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
    if (value.isValid())
        m_store.setValue(name, value);
    else
        m_store.remove(name);
    Q_EMIT changed(name);
}

} // namespace quillmark::settings
