// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/HistoryFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::history {

namespace {

QString messageOf(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

std::unexpected<SaveError> notWritten(const QString &reason)
{
    return std::unexpected(SaveError{SaveError::Kind::NotWritten, reason});
}

std::unexpected<SaveError> inUse(const QString &reason)
{
    return std::unexpected(SaveError{SaveError::Kind::InUse, reason});
}

/// The file that the path leads to, be it there or not.
QString withLinksResolved(const QString &path)
{
    constexpr int mostLinks = 40; // as the system itself follows
    QFileInfo file(path);
    for (int i = 0; i < mostLinks && file.isSymLink(); ++i)
        file.setFile(file.symLinkTarget());
    return file.absoluteFilePath();
}

/// Makes the folder and those above it that are missing, for their owner only. 0, or errno.
int makeFolder(const QString &path)
{
    const auto make = [&path] { return mkdir(QFile::encodeName(path).constData(), 0700) == 0 ? 0 : errno; };
    int error = make();
    if (error == ENOENT && !QFileInfo(path).isRoot()) {
        error = makeFolder(QFileInfo(path).path());
        if (error == 0)
            error = make();
    }
    if (error == EEXIST)
        return QFileInfo(path).isDir() ? 0 : ENOTDIR;
    return error;
}

/// Has the system put what was written on the disk. 0, or errno; a file system that cannot is no error.
int synchronize(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : errno;
}

void synchronizeFolder(const QString &path)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    synchronize(descriptor); // the file is whole either way: at worst it is the one from before
    close(descriptor);
}

/// A full disk takes a part of the text first, and gives its reason only when asked to take the rest.
bool writeAll(QIODevice &device, QByteArrayView text)
{
    while (!text.isEmpty()) {
        const auto written = device.write(text.data(), text.size());
        if (written <= 0)
            return false;
        text = text.sliced(written);
    }
    return true;
}

/// Replaces the file or leaves it alone, whenever this ends. QSaveFile by itself would not notice that the
/// disk did not take the text.
std::expected<void, SaveError> replace(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) || !writeAll(file, text))
        return notWritten(file.errorString());
    if (const int error = synchronize(file.handle()); error != 0)
        return notWritten(messageOf(error));
    if (!file.commit())
        return notWritten(file.errorString());
    synchronizeFolder(QFileInfo(path).path());
    return {};
}

/// "snapshots.unreadable.json"; "snapshots.unreadable-2.json" where that is taken, and so on.
QString freeNameAside(const QString &path)
{
    const QFileInfo file(path);
    const auto suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    for (int number = 1;; ++number) {
        const auto mark = number == 1 ? QString() : QStringLiteral("-%1").arg(number);
        const auto name =
            file.dir().filePath(file.completeBaseName() + QStringLiteral(".unreadable") + mark + suffix);
        if (!QFileInfo::exists(name) && !QFileInfo(name).isSymLink())
            return name;
    }
}

QByteArray arrayOf(const QList<QByteArray> &elements)
{
    qsizetype size = 2;
    for (const auto &element : elements)
        size += element.size() + 1;
    QByteArray array;
    array.reserve(size);
    array += '[';
    for (const auto &element : elements) {
        if (array.size() > 1)
            array += ',';
        array += element;
    }
    array += ']';
    return array;
}

} // namespace

HistoryFile::HistoryFile(const QString &path, std::chrono::milliseconds patience)
    : m_path(withLinksResolved(path))
    , m_patience(patience)
{}

HistoryFile::Contents HistoryFile::read()
{
    // Asked before reading: a file that is replaced in between counts as changed, and is read once more.
    m_version = versionOf(m_path);
    m_isUnreadable = false;
    Contents contents;
    if (!m_version)
        return contents;
    m_isUnreadable = true;
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile()) { // reading a pipe would wait
        contents.fault = QFileInfo(m_path).isDir() ? messageOf(EISDIR) : QStringLiteral("not a regular file");
        return contents;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        contents.fault = file.errorString();
        return contents;
    }
    contents.text = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        contents.fault = file.errorString();
        return contents;
    }
    auto snapshots = decodeHistory(contents.text);
    m_isUnreadable = !snapshots;
    if (snapshots)
        contents.snapshots = std::move(*snapshots);
    else
        contents.fault = snapshots.error();
    return contents;
}

std::expected<void, SaveError> HistoryFile::claim()
{
    const auto taken = takeLock();
    return taken ? std::expected<void, SaveError>() : std::unexpected(taken.error());
}

bool HistoryFile::hasChanged() const
{
    return versionOf(m_path) != m_version;
}

std::expected<void, SaveError> HistoryFile::write(const QList<QByteArray> &snapshots)
{
    const auto wasTaken = takeLock();
    if (!wasTaken)
        return std::unexpected(wasTaken.error());
    if (*wasTaken && hasChanged()) {
        m_lock.release(); // so that the next claim() reads what is there now
        return inUse(QStringLiteral("another program has changed the history"));
    }
    if (const QFileInfo file(m_path); file.exists() && !file.isFile())
        return notWritten(file.isDir() ? messageOf(EISDIR) : QStringLiteral("not a regular file"));
    if (m_isUnreadable) {
        if (const auto kept = keepAside(); !kept)
            return kept;
        m_isUnreadable = false;
    }
    if (const auto replaced = replace(m_path, arrayOf(snapshots)); !replaced)
        return replaced;
    m_version = versionOf(m_path);
    return {};
}

std::optional<HistoryFile::Version> HistoryFile::versionOf(const QString &path)
{
    const auto name = QFile::encodeName(path);
    struct stat found = {};
    if (stat(name.constData(), &found) != 0)
        return std::nullopt;
    std::error_code error;
    const auto modified = std::filesystem::last_write_time(name.constData(), error).time_since_epoch();
    return Version{.device = static_cast<quint64>(found.st_dev),
                   .number = static_cast<quint64>(found.st_ino),
                   .size = found.st_size,
                   .modified = std::chrono::duration_cast<std::chrono::nanoseconds>(modified).count()};
}

/// True: this program became the one that writes just now.
std::expected<bool, SaveError> HistoryFile::takeLock()
{
    if (const int error = makeFolder(QFileInfo(m_path).path()); error != 0)
        return notWritten(messageOf(error));
    const auto taken = m_lock.take((QFile::encodeName(m_path) + ".lock").toStdString(), m_patience);
    if (taken)
        return *taken;
    if (taken.error().error != 0)
        return notWritten(messageOf(taken.error().error));
    const auto holder =
        taken.error().holder == 0 ? QString() : QStringLiteral(" (process %1)").arg(taken.error().holder);
    return inUse(QStringLiteral("another Quillmark%1 has the history open").arg(holder));
}

std::expected<void, SaveError> HistoryFile::keepAside() const
{
    QFile file(m_path);
    if (!file.exists())
        return {};
    const auto failure = [](const QString &reason) {
        return notWritten(QStringLiteral("the unreadable history could not be copied aside: ") + reason);
    };
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    const auto text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failure(file.errorString());
    const auto kept = replace(freeNameAside(m_path), text);
    return kept ? kept : failure(kept.error().reason);
}

} // namespace quillmark::history
