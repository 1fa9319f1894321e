// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// As much of a terminal as a live view needs: it has a screen of cells, and understands the sequences that
/// move the cursor and empty the screen. Whatever is written beyond its edges is a fault.
class PictureTerminal
{
public:
    PictureTerminal(int columns, int rows)
        : m_columns(columns)
        , m_rows(rows, QString(columns, u' '))
    {}

    void write(const QByteArray &bytes)
    {
        static const QRegularExpression sequence(QStringLiteral("\x1b\\[([?0-9;]*)([A-Za-z])"));
        const auto text = QString::fromUtf8(bytes);
        for (qsizetype at = 0; at < text.size();) {
            if (text.at(at) == u'\x1b') {
                const auto match = sequence.match(text, at, QRegularExpression::NormalMatch,
                                                  QRegularExpression::AnchorAtOffsetMatchOption);
                obey(match.captured(1), match.captured(2));
                at += qMax(match.capturedLength(), qsizetype(1));
                continue;
            }
            if (m_row < 0 || m_row >= m_rows.size() || m_column >= m_columns)
                hasFault = true;
            else
                m_rows[m_row][m_column++] = text.at(at);
            ++at;
        }
    }

    QString text() const { return m_rows.join(u'\n'); }

    bool hasFault = false;
    bool hasColor = false;
    int timesEmptied = 0;

private:
    void obey(const QString &parameters, const QString &command)
    {
        if (command == QStringLiteral("H")) {
            m_row = parameters.section(u';', 0, 0).toInt() - 1;
            m_column = parameters.section(u';', 1, 1).toInt() - 1;
        } else if (command == QStringLiteral("J")) {
            m_rows.fill(QString(m_columns, u' '));
            ++timesEmptied;
        } else if (command == QStringLiteral("m")) {
            hasColor = hasColor || parameters.startsWith(QStringLiteral("0;"));
        } else {
            hasFault = true;
        }
    }

    int m_columns;
    QStringList m_rows;
    int m_row = 0;
    int m_column = 0;
};
