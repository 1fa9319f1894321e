// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

/// A folder of files that stands for the root of a machine. The text describes it by lines:
///
///     /path: content in one line, where \0 is a zero byte
///     /path:
///     content in the lines up to the next path
///     /path -> what the link points to
class FileTree
{
public:
    explicit FileTree(const QByteArray &text)
    {
        QString path;
        QByteArray content;
        const auto finish = [&] {
            if (!path.isEmpty())
                write(path, content);
            path.clear();
            content.clear();
        };
        for (const QByteArray &line : text.split('\n')) {
            const qsizetype link = line.indexOf(" -> ");
            const qsizetype colon = line.indexOf(": ");
            if (!line.startsWith('/')) {
                content += line + '\n';
                continue;
            }
            finish();
            if (link >= 0) {
                const QString place = pathOf(QString::fromUtf8(line.left(link)));
                QDir().mkpath(QFileInfo(place).path());
                QFile::link(QString::fromUtf8(line.mid(link + 4)), place);
            } else if (colon >= 0) {
                write(QString::fromUtf8(line.left(colon)),
                      line.mid(colon + 2).replace("\\0", QByteArray(1, '\0')) + '\n');
            } else {
                path = QString::fromUtf8(line.chopped(1));
            }
        }
        finish();
    }

    /// Replaces what is in the file, which stays the same file to one who has it open.
    void write(const QString &path, const QByteArray &content) const
    {
        const QString place = pathOf(path);
        QDir().mkpath(QFileInfo(place).path());
        QFile file(place);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(place));
    }

    bool has(const QString &path) const { return QFileInfo::exists(pathOf(path)); }

    std::string root() const { return m_folder.path().toStdString(); }

private:
    QString pathOf(const QString &path) const { return m_folder.path() + path; }

    QTemporaryDir m_folder;
};
