// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/snapshotJson.h"
#include "platform/posix/FileLock.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <chrono>
#include <expected>
#include <optional>
#include <vector>

namespace quillmark::history {

/// Why a history could not be saved.
struct SaveError
{
    enum class Kind {
        InUse,      ///< another program writes it: nothing of that program's was overwritten
        NotWritten, ///< the system refused; the file is as it was
    };

    Kind kind = Kind::NotWritten;
    QString reason; ///< for a person and the log: "No space left on device"

    bool operator==(const SaveError &) const = default;
};

/// The file that a history is kept in: one JSON array of snapshots, newest first (docs/contracts.md).
///
/// A symbolic link is followed, and stays. Not for use from two threads at a time.
class HistoryFile
{
public:
    /// Another program that writes the file is waited for that long before it is an error.
    explicit HistoryFile(const QString &path, std::chrono::milliseconds patience = {});

    const QString &path() const { return m_path; }

    struct Contents
    {
        QByteArray text;                       ///< as it stands in the file
        std::vector<StoredSnapshot> snapshots; ///< newest first; views of `text`
        QString fault; ///< why there are none in spite of a file; empty when all is well
    };

    /// Reads the file; one that is missing is an empty history.
    Contents read();

    /// What a list shows of the same; the reason where there is none in spite of a file.
    std::expected<std::vector<ScanDigest>, QString> readDigests() const;

    /// Makes this program the one that writes, until the object is gone. Makes the folder if there is none.
    std::expected<void, SaveError> claim();

    /// Whether the file has to be read again: it is another one than read() read or write() wrote, or read()
    /// could not get at what is in it.
    bool hasChanged() const;

    /// Replaces the file, on the disk, with these snapshots (each encoded), or leaves it as it is. A file
    /// that read() could not make out is copied aside first. Includes claim(), but never replaces a file that
    /// changed before this program was the one that writes, nor one that read() could not get at.
    std::expected<void, SaveError> write(const QList<QByteArray> &snapshots);

private:
    /// Tells one state of a file from another.
    struct Version
    {
        quint64 device = 0;
        quint64 number = 0;
        qint64 size = 0;
        qint64 modified = 0; ///< in nanoseconds

        bool operator==(const Version &) const = default;
    };

    std::expected<QByteArray, QString> readText() const;
    /// None: there is no file. Otherwise why it cannot be told what stands there.
    static std::expected<std::optional<Version>, QString> versionOf(const QString &path);
    std::expected<bool, SaveError> takeLock();
    std::expected<void, SaveError> keepAside() const;

    QString m_path; ///< with links resolved
    std::chrono::milliseconds m_patience;
    platform::FileLock m_lock;
    std::optional<Version> m_version; ///< absent: no file
    bool m_isUnreadable = false;      ///< what is in it makes no history
    QString m_faultInReading;         ///< why what is in it is not known; empty: it is, or there is no file
};

} // namespace quillmark::history
