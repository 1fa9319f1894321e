// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/HistoryFile.h"

#include "platform/posix/writeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <sys/stat.h>

namespace quillmark::history {

namespace {

Q_LOGGING_CATEGORY(log, "com.tarnwick.Quillmark.ScanHistory")

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

std::filesystem::path pathOf(const QString &name)
{
    return QFile::encodeName(name).toStdString();
}

std::expected<void, SaveError> written(const std::expected<void, platform::FileError> &outcome)
{
    if (outcome)
        return {};
    return notWritten(messageOf(outcome.error().number));
}

/// For its owner only. Replaces the file or leaves it alone, whenever this ends.
std::expected<void, SaveError> replace(const QString &path, const QByteArray &text)
{
    const std::string_view bytes(text.constData(), static_cast<std::size_t>(text.size()));
    return written(platform::writeFile(pathOf(path), bytes, platform::Existing::Replace, 0600));
}

QString withLinksResolved(const QString &path)
{
    const auto file = platform::withLinksResolved(pathOf(path));
    return file ? QFileInfo(QFile::decodeName(file->c_str())).absoluteFilePath() : path;
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
    const auto version = versionOf(m_path);
    m_version = version.value_or(std::nullopt);
    m_isUnreadable = false;
    m_faultInReading = version ? QString() : version.error();
    Contents contents{.fault = m_faultInReading};
    if (!m_version)
        return contents;
    auto text = readText();
    if (!text) {
        contents.fault = m_faultInReading = text.error();
        return contents;
    }
    contents.text = std::move(*text);
    auto snapshots = decodeHistory(contents.text);
    m_isUnreadable = !snapshots;
    if (snapshots)
        contents.snapshots = std::move(*snapshots);
    else
        contents.fault = snapshots.error();
    return contents;
}

std::expected<std::vector<ScanDigest>, QString> HistoryFile::readDigests() const
{
    const auto version = versionOf(m_path);
    if (!version)
        return std::unexpected(version.error());
    if (!*version)
        return {};
    const auto text = readText();
    return text ? decodeDigests(*text) : std::unexpected(text.error());
}

std::expected<QByteArray, QString> HistoryFile::readText() const
{
    if (const QFileInfo file(m_path); !file.isFile()) // reading a pipe would wait
        return std::unexpected(file.isDir() ? messageOf(EISDIR) : QStringLiteral("not a regular file"));
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::unexpected(file.errorString());
    auto text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(file.errorString());
    return text;
}

std::expected<void, SaveError> HistoryFile::claim()
{
    const auto taken = takeLock();
    return taken ? std::expected<void, SaveError>() : std::unexpected(taken.error());
}

bool HistoryFile::hasChanged() const
{
    return !m_faultInReading.isEmpty() || versionOf(m_path).value_or(std::nullopt) != m_version;
}

std::expected<void, SaveError> HistoryFile::write(const QList<QByteArray> &snapshots)
{
    const auto wasTaken = takeLock();
    if (!wasTaken)
        return std::unexpected(wasTaken.error());
    if (const QFileInfo file(m_path); file.exists() && !file.isFile())
        return notWritten(file.isDir() ? messageOf(EISDIR) : QStringLiteral("not a regular file"));
    if (!m_faultInReading.isEmpty())
        return notWritten(QStringLiteral("the history could not be read: ") + m_faultInReading);
    if (*wasTaken && hasChanged()) {
        m_lock.release(); // so that the next claim() reads what is there now
        return inUse(QStringLiteral("another program has changed the history"));
    }
    if (m_isUnreadable) {
        if (const auto kept = keepAside(); !kept)
            return kept;
        m_isUnreadable = false;
    }
    if (const auto replaced = replace(m_path, arrayOf(snapshots)); !replaced)
        return replaced;
    m_version = versionOf(m_path).value_or(std::nullopt);
    return {};
}

std::expected<std::optional<HistoryFile::Version>, QString> HistoryFile::versionOf(const QString &path)
{
    const auto name = pathOf(path);
    struct stat found = {};
    if (stat(name.c_str(), &found) != 0)
        return errno == ENOENT ? std::expected<std::optional<Version>, QString>()
                               : std::unexpected(messageOf(errno));
    std::error_code error;
    const auto modified = std::filesystem::last_write_time(name, error).time_since_epoch();
    return Version{.device = static_cast<quint64>(found.st_dev),
                   .number = static_cast<quint64>(found.st_ino),
                   .size = found.st_size,
                   .modified = std::chrono::duration_cast<std::chrono::nanoseconds>(modified).count()};
}

/// True: this program became the one that writes just now.
std::expected<bool, SaveError> HistoryFile::takeLock()
{
    if (const auto made = written(platform::makeFolder(pathOf(m_path).parent_path(), 0700)); !made)
        return std::unexpected(made.error());
    const auto taken = m_lock.take(pathOf(m_path) += ".lock", m_patience);
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
    const auto aside = freeNameAside(m_path);
    const auto kept = replace(aside, text);
    if (!kept)
        return failure(kept.error().reason);
    qCInfo(log).noquote() << "ScanHistory: kept what could not be read as" << aside;
    return {};
}

} // namespace quillmark::history
