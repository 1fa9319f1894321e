// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariant>

namespace quillmark::settings {

/// A choice that is kept, under a fixed key and of one type. Each layer names its own.
template <typename T>
struct Key
{
    QLatin1StringView name;
    T fallback = {}; ///< while nothing has been chosen, or what is kept is of another type
};

/// What the user has chosen, kept where the system keeps such things: the user defaults on a Mac (domain
/// com.tarnwick.Quillmark), Quillmark/Quillmark.conf in the configuration folder elsewhere. The command line
/// and the window share it.
///
/// Lives on the main thread.
class Settings : public QObject
{
    Q_OBJECT

public:
    /// Those of the user.
    explicit Settings(QObject *parent = nullptr);
    /// Those in a file of their own: a test’s.
    explicit Settings(const QString &file, QObject *parent = nullptr);

    /// Tells QSettings, and whoever else asks Qt, which application this is.
    static void nameApplication();

    template <typename T>
    T value(const Key<T> &key) const
    {
        QVariant kept = m_store.value(key.name);
        return kept.isValid() && kept.convert(QMetaType::fromType<T>()) ? kept.value<T>() : key.fallback;
    }
    /// Whether anything has been chosen.
    template <typename T>
    bool contains(const Key<T> &key) const
    {
        return m_store.contains(key.name);
    }
    template <typename T>
    void setValue(const Key<T> &key, const T &value)
    {
        store(key.name, QVariant::fromValue(value));
    }
    /// Back to the fallback.
    template <typename T>
    void remove(const Key<T> &key)
    {
        store(key.name, {});
    }

Q_SIGNALS:
    /// The value under this key is another one now.
    void changed(const QString &key);

private:
    /// An invalid value is removed.
    void store(QLatin1StringView name, const QVariant &value);
    void keepPrivate();

    QSettings m_store;
};

} // namespace quillmark::settings
