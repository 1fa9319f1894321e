// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/HistoryFile.h"
#include "history/ScanSnapshot.h"
#include "history/SerialQueue.h"
#include "history/SnapshotChange.h"
#include "language/LanguageManager.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QUuid>

#include <chrono>
#include <expected>
#include <mutex>
#include <vector>

namespace quillmark::history {

/// The saved scans, newest first, and their file.
///
/// Lives on the main thread. The file is read once, when the object is made; from then on the list here is
/// the truth, and the whole file is written after each change, in order, on a thread of the object's own. The
/// first change makes this program the only one that writes the file, until the object is gone: the list may
/// then take in what another program saved in the meantime. While another program has the file, scans are
/// kept here only, and nothing can be removed.
///
/// A change that could not be saved is logged, and announced by saveFailed(). It stays in the list, and is
/// saved with the next change, or when the next inspection is recorded, news or not.
class ScanHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype mostSnapshots = 200;

    /// Reads `file`. A change waits that long for another program that has the file: for one that has no
    /// window to keep drawing. `language` must outlive the object.
    explicit ScanHistory(const language::LanguageManager &language, const QString &file = defaultFile(),
                         std::chrono::milliseconds patience = {}, QObject *parent = nullptr);
    /// Finishes the writes that are on their way.
    ~ScanHistory() override;

    /// The history of the interface, in the default file. Made by the first call, with the language of that
    /// call; lives as long as the program.
    static ScanHistory &shared(const language::LanguageManager &language);

    /// "History/snapshots.json" where this system keeps what programs store. Creates nothing.
    static QString defaultFile();

    /// Where the scans are kept.
    const QString &file() const { return m_file.path(); }

    const QList<ScanSnapshot> &snapshots() const { return m_snapshots; }

    /// Saves the inspection as a scan, unless nothing has changed since the newest one of the same model. Of
    /// more than mostSnapshots the oldest go. Returns whether the list has the scan now.
    bool record(const inspection::DeviceSummary &summary,
                const QList<inspection::CapabilitySection> &sections);

    /// Removes the scan, if there is one.
    void remove(const QUuid &id);

    /// Removes all scans that are in the list: not those that another program has saved since it was read.
    void clear();

    /// Waits until all changes are saved, and tells how the last one went.
    std::expected<void, SaveError> flush();

Q_SIGNALS:
    void snapshotsChanged();
    void saveFailed(const quillmark::history::SaveError &error);

private:
    bool isNews(const ScanSnapshot &snapshot) const;
    void take(const std::vector<StoredSnapshot> &stored);
    void insert(qsizetype at, const ScanSnapshot &snapshot);
    void erase(qsizetype at, qsizetype count);
    bool becomeWriter();
    void merge(const std::vector<StoredSnapshot> &stored);
    void save();
    void saveUnsaved();
    void finish(const std::expected<void, SaveError> &outcome);
    Q_INVOKABLE void announceFailure();

    const language::LanguageManager &m_language;
    QList<ScanSnapshot> m_snapshots;
    QList<QByteArray> m_encoded; ///< of each snapshot, which never changes: saving joins them
    QSet<QUuid> m_recordedHere;  ///< the file may not have them yet
    bool m_isWriter = false;
    HistoryFile m_file; ///< used on the queue, once it is read
    std::mutex m_outcomeMutex;
    std::expected<void, SaveError> m_outcome; ///< of the last save; guarded
    SerialQueue m_queue;
};

} // namespace quillmark::history
