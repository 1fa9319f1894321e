// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <compare>
#include <optional>

namespace quillmark::update {

/// A version as feeds write it: numbers between dots, then perhaps what makes it a pre-release ("1.2b3",
/// "1.2-beta.3", "1.2 rc"); what follows a "+" does not count.
///
/// Missing numbers are 0: 1.2 equals 1.2.0. A pre-release comes before its release; two of them are compared
/// word by word and number by number, a number before a word, a shorter one before a longer.
class Version
{
public:
    /// None when the text does not begin with a number, holds anything but letters, digits, ". + - _ ~" and
    /// spaces, or is longer than any version is.
    static std::optional<Version> parse(QStringView text);

    /// As it was written, without the space around it.
    const QString &text() const { return m_text; }

    friend std::strong_ordering operator<=>(const Version &one, const Version &other);
    friend bool operator==(const Version &one, const Version &other) { return (one <=> other) == 0; }

private:
    struct Part
    {
        QString word; ///< in lower case; empty: a number
        qint64 number = 0;

        std::strong_ordering operator<=>(const Part &other) const;
        bool operator==(const Part &other) const = default;
    };

    QString m_text;
    QList<qint64> m_numbers; ///< without zeros at the end
    QList<Part> m_preRelease;
};

} // namespace quillmark::update
