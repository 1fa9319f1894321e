// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/ScanHistory.h"

#include "platform/dataFolder.h"

#include <QFile>
#include <QLoggingCategory>

#include <algorithm>

namespace quillmark::history {

namespace {

Q_LOGGING_CATEGORY(log, "com.tarnwick.Quillmark.ScanHistory")

} // namespace

ScanHistory::ScanHistory(const language::LanguageManager &language, const QString &file,
                         std::chrono::milliseconds patience, QObject *parent)
    : QObject(parent)
    , m_language(language)
    , m_file(file, patience)
{
    take(m_file.read().snapshots);
}

/// The last job may still announce a failure to this object, which has to be whole then.
ScanHistory::~ScanHistory()
{
    m_queue.finish();
}

ScanHistory &ScanHistory::shared(const language::LanguageManager &language)
{
    static ScanHistory history(language);
    return history;
}

QString ScanHistory::defaultFile()
{
    return QFile::decodeName((platform::dataFolder() / "History/snapshots.json").c_str());
}

bool ScanHistory::record(const inspection::DeviceSummary &summary,
                         const QList<inspection::CapabilitySection> &sections)
{
    const auto snapshot = takeSnapshot(summary, sections, m_language.language());
    if (!isNews(snapshot)) {
        saveUnsaved();
        return false;
    }
    const bool maySave = becomeWriter();
    if (!isNews(snapshot)) // after what another program has saved
        return false;
    insert(0, snapshot);
    m_recordedHere.insert(snapshot.id);
    if (const auto surplus = m_snapshots.size() - mostSnapshots; surplus > 0)
        erase(mostSnapshots, surplus);
    if (maySave)
        save();
    Q_EMIT snapshotsChanged();
    return true;
}

void ScanHistory::remove(const QUuid &id)
{
    if (!becomeWriter())
        return;
    const auto place = std::ranges::find(m_snapshots, id, &ScanSnapshot::id);
    if (place == m_snapshots.end())
        return;
    erase(place - m_snapshots.begin(), 1);
    save();
    Q_EMIT snapshotsChanged();
}

void ScanHistory::clear()
{
    QSet<QUuid> meant;
    for (const auto &snapshot : m_snapshots)
        meant.insert(snapshot.id);
    if (!becomeWriter())
        return;
    for (qsizetype at = m_snapshots.size() - 1; at >= 0; --at) {
        if (meant.contains(m_snapshots[at].id))
            erase(at, 1);
    }
    save();
    Q_EMIT snapshotsChanged();
}

std::expected<void, SaveError> ScanHistory::flush()
{
    m_queue.wait([] {});
    const std::lock_guard lock(m_outcomeMutex);
    return m_outcome;
}

bool ScanHistory::isNews(const ScanSnapshot &snapshot) const
{
    return m_snapshots.isEmpty() || m_snapshots.first().modelIdentifier != snapshot.modelIdentifier ||
           !diff(m_snapshots.first(), snapshot).isEmpty();
}

void ScanHistory::take(const std::vector<StoredSnapshot> &stored)
{
    m_snapshots.clear();
    m_encoded.clear();
    for (const auto &[snapshot, json] : stored)
        insert(m_snapshots.size(), snapshot);
}

void ScanHistory::insert(qsizetype at, const ScanSnapshot &snapshot)
{
    m_snapshots.insert(at, snapshot);
    m_encoded.insert(at, encoded(snapshot));
}

void ScanHistory::erase(qsizetype at, qsizetype count)
{
    m_snapshots.remove(at, count);
    m_encoded.remove(at, count);
}

/// False: another program has the file, and so nothing can be saved. Where the file can't be written for any
/// other reason, saving will fail and say so.
bool ScanHistory::becomeWriter()
{
    if (m_isWriter)
        return true;
    std::expected<void, SaveError> claimed;
    std::optional<HistoryFile::Contents> changed;
    m_queue.wait([&] {
        claimed = m_file.claim();
        if (claimed && m_file.hasChanged())
            changed = m_file.read();
        m_isWriter = claimed && !m_file.hasChanged();
    });
    if (!claimed && claimed.error().kind == SaveError::Kind::InUse) {
        finish(claimed);
        return false;
    }
    // What could not be read is no reason to forget what was read before.
    if (changed && changed->fault.isEmpty()) {
        merge(changed->snapshots);
        Q_EMIT snapshotsChanged();
    }
    return true;
}

/// Takes what another program has saved for the list, and puts back into it what was recorded here meanwhile.
void ScanHistory::merge(const std::vector<StoredSnapshot> &stored)
{
    auto own = m_snapshots;
    take(stored);
    own.removeIf([this](const ScanSnapshot &snapshot) {
        return !m_recordedHere.contains(snapshot.id) ||
               std::ranges::find(m_snapshots, snapshot.id, &ScanSnapshot::id) != m_snapshots.end();
    });
    for (auto snapshot = own.crbegin(); snapshot != own.crend(); ++snapshot) {
        const auto place = std::ranges::find_if(
            m_snapshots, [&](const ScanSnapshot &other) { return other.date <= snapshot->date; });
        insert(place - m_snapshots.begin(), *snapshot);
    }
}

/// What could not be saved when it was new: the disk may have room by now, the other program may have ended.
void ScanHistory::saveUnsaved()
{
    {
        const std::lock_guard lock(m_outcomeMutex);
        if (m_outcome)
            return;
    }
    if (becomeWriter())
        save();
}

void ScanHistory::save()
{
    m_queue.post([this, snapshots = m_encoded] { finish(m_file.write(snapshots)); });
}

/// On either thread.
void ScanHistory::finish(const std::expected<void, SaveError> &outcome)
{
    {
        const std::lock_guard lock(m_outcomeMutex);
        m_outcome = outcome;
    }
    if (outcome)
        return;
    qCWarning(log).noquote() << "ScanHistory: could not save snapshots:" << outcome.error().reason;
    QMetaObject::invokeMethod(this, "announceFailure", Qt::QueuedConnection);
}

void ScanHistory::announceFailure()
{
    std::expected<void, SaveError> outcome;
    {
        const std::lock_guard lock(m_outcomeMutex);
        outcome = m_outcome;
    }
    if (outcome) // a later change was saved, and this one with it
        return;
    if (outcome.error().kind == SaveError::Kind::InUse)
        m_isWriter = false; // the next change has to look at the file again
    Q_EMIT saveFailed(outcome.error());
}

} // namespace quillmark::history
