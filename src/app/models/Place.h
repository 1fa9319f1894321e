// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace quillmark::app {

/// Where in the window one is, by a name that does not change: it is kept from one start to the next.
/// Sections of the inspection go by their keys.
namespace place {

inline const QString overview = QStringLiteral("overview");
inline const QString history = QStringLiteral("history");
inline const QString battery = QStringLiteral("battery");
inline const QString monitor = QStringLiteral("monitor");

inline QString ofSection(const QString &key)
{
    return QStringLiteral("section/") + key;
}

/// Empty for any other place.
inline QString sectionKey(const QString &place)
{
    const auto prefix = ofSection({});
    return place.startsWith(prefix) ? place.sliced(prefix.size()) : QString();
}

} // namespace place

} // namespace quillmark::app
