// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/saveFile.h"

#include "reports/Text.h"

#include <QFile>
#include <QStorageInfo>

#include <cerrno>
#include <cstring>
#include <system_error>

namespace quillmark::reports {

namespace {

using Reason = SaveError::Reason;

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

/// The name that people know it by, or else where it is mounted.
QString diskOf(const std::filesystem::path &file)
{
    std::error_code ignored;
    const auto folder =
        std::filesystem::weakly_canonical(std::filesystem::absolute(file, ignored), ignored).parent_path();
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
    const auto written =
        platform::writeFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())}, existing);
    if (written)
        return {};
    const auto number = written.error().number;
    return std::unexpected(SaveError{.reason = reasonOf(number), .file = file, .number = number});
}

} // namespace quillmark::reports
