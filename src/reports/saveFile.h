// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <expected>
#include <filesystem>

namespace quillmark::reports {

/// Why a file could not be saved.
struct SaveError
{
    enum class Reason {
        Exists,       ///< and was not to be replaced
        IsFolder,     ///< or ends like the name of one
        NoFolder,     ///< that it should stand in
        NoPermission, ///< there, or the file system takes no changes
        NoSpace,      ///< or no more than a quota leaves
        DiskGone,
        BadName, ///< longer than the file system takes, or going round in links
        Other,
    };

    Reason reason = Reason::Other;
    std::filesystem::path file;
    int number = 0; ///< errno, where the system refused
};

/// "The report couldn’t be saved."
QString title(const SaveError &error);
/// Why, in one sentence of the interface language: "You don’t have permission to write there."
QString reasonText(const SaveError &error);

enum class Existing { Keep, Replace };

/// Writes the file whole or not at all: whatever fails, a file that stood there stands as it was, and no part
/// of the new one stays behind. A new file gets the permissions that the process gives its files, a replaced
/// one keeps its own. A symbolic link stays, and the file behind it is written. A device or a pipe is written
/// to, not replaced.
///
/// Where the length of files is limited (RLIMIT_FSIZE), the process has to ignore SIGXFSZ, or it ends here.
///
/// Existing::Keep never overwrites a file, not even one that comes into being meanwhile.
std::expected<void, SaveError> saveFile(const std::filesystem::path &file, const QByteArray &bytes,
                                        Existing existing);

} // namespace quillmark::reports
