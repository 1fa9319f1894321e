// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace quillmark::language {

enum class ByteCountStyle {
    Memory, ///< powers of 1024
    File,   ///< powers of 1000
};

/// How much of a moment is written.
enum class DateStyle {
    DateAndTime, ///< "November 22, 2025 at 8:41 AM", "22. November 2025 um 08:41"
    Time,        ///< "8:41 AM", "08:41"
    Day,         ///< "November 22", "22. November"
    DayAndYear,  ///< "November 22, 2025"
    Month,       ///< "November 2025"
};

/// Values as a language writes them, the same on every system: word for word what Foundation's formatters
/// give on a Mac.
///
/// A value without state of its own; its calls may be made from any thread.
class Formats
{
public:
    /// `language` is a BCP 47 tag: "en", "pt-BR".
    explicit Formats(QString language);

    const QString &language() const { return m_language; }

    /// "16 GB", "494.38 GB", "Zero kB". Both styles name their units kB, MB, GB, …
    QString byteCount(std::int64_t bytes, ByteCountStyle style) const;

    /// Days, hours and minutes with short names: "3d 4h", "0m". None when there is no such time.
    std::optional<QString> uptime(std::optional<double> seconds) const;

    /// "low power and external eGPU"
    QString list(const QStringList &items) const;

    /// "1,200", "14.2": grouped as the language groups, always with that many digits after the point.
    QString number(double value, int fractionDigits = 0) const;
    /// The same of a whole number.
    QString count(qsizetype value) const { return number(static_cast<double>(value)); }

    /// A local date and time. The time zone of `moment` is not converted.
    QString date(const QDateTime &moment, DateStyle style) const;
    QString dateAndTime(const QDateTime &moment) const;

    /// "German", "Português (Brasil)": what the language calls the one of that tag, as in a list of choices.
    QString languageName(const QString &tag) const;

private:
    QString m_language;
};

} // namespace quillmark::language
