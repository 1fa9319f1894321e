// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/saveFile.h"

#include "reports/Text.h"

#include <QFile>
#include <QRandomGenerator>
#include <QStorageInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::reports {

namespace {

using Reason = SaveError::Reason;
using Result = std::expected<void, int>; ///< errno

Reason reasonOf(int number)
{
    switch (number) {
    case EEXIST:
        return Reason::Exists;
    case EISDIR:
        return Reason::IsFolder;
    case ENOENT:
    case ENOTDIR:
        return Reason::NoFolder;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return Reason::NoPermission;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Reason::NoSpace;
    case EIO:
    case ENODEV:
    case ENXIO:
    case ESTALE:
        return Reason::DiskGone;
    case ENAMETOOLONG:
    case ELOOP:
    case EILSEQ:
    case EINVAL:
        return Reason::BadName;
    default:
        return Reason::Other;
    }
}

Result failure()
{
    return std::unexpected(errno);
}

/// An open file that is closed in time, or at the latest when this goes.
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

    Result write(const QByteArray &bytes)
    {
        for (qsizetype done = 0; done < bytes.size();) {
            const auto count =
                ::write(m_number, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
            if (count < 0 && errno != EINTR)
                return failure();
            done += std::max<qsizetype>(count, 0);
        }
        return {};
    }

    /// Some file systems say only now that they had no room.
    Result close() { return ::close(std::exchange(m_number, -1)) == 0 ? Result() : failure(); }

private:
    int m_number;
};

/// A file beside the one that is to be, which is gone again unless it has taken that one's place.
class TemporaryFile
{
public:
    /// `mode`: who may open it from the beginning, less what the process takes away.
    TemporaryFile(const std::filesystem::path &folder, mode_t mode)
        : m_path(folder / (".quillmark-" + std::to_string(QRandomGenerator::global()->generate64())))
        , m_file(::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode))
        , m_isThere(m_file.isOpen())
    {}
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile()
    {
        if (m_isThere)
            ::unlink(m_path.c_str());
    }

    bool isThere() const { return m_isThere; }

    /// Writes the bytes down to the disk, for the same people as the file that is to be replaced, if there is
    /// one.
    Result fill(const QByteArray &bytes, const struct stat *replaced)
    {
        if (replaced) {
            // Only root may give a file away, and only root has to.
            [[maybe_unused]] const int owned = ::fchown(m_file.number(), replaced->st_uid, replaced->st_gid);
            if (::fchmod(m_file.number(), replaced->st_mode & 0777) != 0)
                return failure();
        }
        if (const auto written = m_file.write(bytes); !written)
            return written;
        // Not every file system can.
        if (::fsync(m_file.number()) != 0 && errno != EINVAL && errno != ENOTSUP)
            return failure();
        return m_file.close();
    }

    Result replace(const std::filesystem::path &file)
    {
        if (std::rename(m_path.c_str(), file.c_str()) != 0)
            return failure();
        m_isThere = false;
        return {};
    }

    /// Fails where a file of that name is.
    Result becomeNew(const std::filesystem::path &file)
    {
        if (::link(m_path.c_str(), file.c_str()) == 0)
            return {};
        // Disks for exchange know no links.
        if (errno != EPERM && errno != ENOTSUP && errno != ENOSYS && errno != EMLINK)
            return failure();
        struct stat there = {};
        return ::lstat(file.c_str(), &there) == 0 ? Result(std::unexpected(EEXIST)) : replace(file);
    }

private:
    std::filesystem::path m_path;
    Descriptor m_file;
    bool m_isThere;
};

Result writeInto(const std::filesystem::path &device, const QByteArray &bytes)
{
    Descriptor file(::open(device.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen())
        return failure();
    if (const auto written = file.write(bytes); !written)
        return written;
    return file.close();
}

/// `replaced`: the file that stands there, if any.
Result writeWhole(const std::filesystem::path &file, const QByteArray &bytes, const struct stat *replaced,
                  Existing existing)
{
    TemporaryFile temporary(file.has_parent_path() ? file.parent_path() : ".", replaced ? 0600 : 0666);
    if (!temporary.isThere())
        return failure();
    if (const auto filled = temporary.fill(bytes, replaced); !filled)
        return filled;
    return existing == Existing::Replace ? temporary.replace(file) : temporary.becomeNew(file);
}

/// Where links that lead nowhere yet would make the file.
std::expected<std::filesystem::path, int> targetOf(std::filesystem::path file)
{
    constexpr int mostLinks = 40;
    std::error_code ignored;
    for (int i = 0; i < mostLinks; ++i) {
        if (!std::filesystem::is_symlink(file, ignored))
            return file;
        file = file.parent_path() / std::filesystem::read_symlink(file, ignored);
    }
    return std::unexpected(ELOOP);
}

Result save(const std::filesystem::path &given, const QByteArray &bytes, Existing existing)
{
    if (!given.has_filename())
        return std::unexpected(EISDIR);
    const auto file = targetOf(given);
    if (!file)
        return std::unexpected(file.error());
    struct stat there = {};
    if (::stat(file->c_str(), &there) != 0) {
        if (errno != ENOENT)
            return failure();
        return writeWhole(*file, bytes, nullptr, existing);
    }
    if (S_ISDIR(there.st_mode))
        return std::unexpected(EISDIR);
    if (!S_ISREG(there.st_mode))
        return writeInto(*file, bytes);
    if (existing == Existing::Keep)
        return std::unexpected(EEXIST);
    // A folder in which one may write would let a protected file be replaced.
    if (::faccessat(AT_FDCWD, file->c_str(), W_OK, AT_EACCESS) != 0)
        return failure();
    return writeWhole(*file, bytes, &there, Existing::Replace);
}

/// The name that people know it by, or else where it is mounted.
QString diskOf(const std::filesystem::path &file)
{
    std::error_code ignored;
    const auto folder = std::filesystem::weakly_canonical(file, ignored).parent_path();
    return QStorageInfo(QFile::decodeName(folder.c_str())).displayName();
}

} // namespace

QString title(const SaveError &)
{
    return Text::tr("The report couldn’t be saved.");
}

QString reasonText(const SaveError &error)
{
    switch (error.reason) {
    case Reason::Exists:
        return Text::tr("There is a file with this name already.");
    case Reason::IsFolder:
        return Text::tr("This is a folder.");
    case Reason::NoFolder:
        return Text::tr("The folder does not exist.");
    case Reason::NoPermission:
        return Text::tr("You don’t have permission to write there.");
    case Reason::NoSpace:
        return Text::tr("There is not enough free space on “%1”.").arg(diskOf(error.file));
    case Reason::DiskGone:
        return Text::tr("The disk is no longer connected.");
    case Reason::BadName:
        return Text::tr("No file can have this name.");
    case Reason::Other:
        break;
    }
    return Text::tr("The system says: %1").arg(QString::fromLocal8Bit(std::strerror(error.number)));
}

std::expected<void, SaveError> saveFile(const std::filesystem::path &file, const QByteArray &bytes,
                                        Existing existing)
{
    const auto saved = save(file, bytes, existing);
    if (saved)
        return {};
    return std::unexpected(
        SaveError{.reason = reasonOf(saved.error()), .file = file, .number = saved.error()});
}

} // namespace quillmark::reports
