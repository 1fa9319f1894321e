// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "language/utcText.h"

#include <QDateTime>
#include <QString>

namespace quillmark::language {

QString utcText(const QDateTime &moment)
{
    // QDateTime's own text of this form sets a locale up, a noticeable part of a short run.
    const auto utc = moment.toUTC();
    const auto day = utc.date();
    const auto time = utc.time();
    return QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02dZ", day.year(), day.month(), day.day(),
                             time.hour(), time.minute(), time.second());
}

} // namespace quillmark::language
