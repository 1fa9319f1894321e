// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/posix/writeFile.h"

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

using platform::Existing;

/// Writes the file as platform::writeFile() does, which says what stays as it was whatever fails: whole or
/// not at all. A new file gets the permissions that the process gives its files, a replaced one keeps its
/// own.
std::expected<void, SaveError> saveFile(const std::filesystem::path &file, const QByteArray &bytes,
                                        Existing existing);

} // namespace quillmark::reports
