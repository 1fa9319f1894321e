// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"

#include <QDateTime>
#include <QString>

// How the window speaks of moments: near ones by what people call them.

namespace quillmark::app {

/// "08:41": hours and minutes.
QString timeText(const QDateTime &moment, const language::Formats &formats);
/// "12 November", with the year where it is not this one.
QString dayText(const QDateTime &moment, const language::Formats &formats);

/// "Today, 08:41", "Yesterday, 19:20", "18 September 2025, 12:10".
QString momentText(const QDateTime &moment, const language::Formats &formats);
/// "today, 08:41", "18 September, 12:10": the same within a sentence.
QString shortMomentText(const QDateTime &moment, const language::Formats &formats);
/// "12 November, 19:20": both parts, however near the day is.
QString dayAndTimeText(const QString &day, const QString &time);

/// "Inspected today at 08:41", "Inspected yesterday at 19:20", "Inspected on 12 November".
QString inspectedText(const QDateTime &moment, const language::Formats &formats);

/// "Last checked today at 08:41", and so on.
QString lastCheckedText(const QDateTime &moment, const language::Formats &formats);

/// "All 11 sections, as inspected today at 08:41.", and so on.
QString exportedText(int sections, const QDateTime &moment, const language::Formats &formats);

} // namespace quillmark::app
