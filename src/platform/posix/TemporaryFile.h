// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/posix/FileDescriptor.h"

#include <filesystem>
#include <string_view>

#include <sys/types.h>

namespace quillmark::platform {

/// A file under a name of its own that is to take a place in the same folder. It is removed again unless it
/// has; if the program ends before, another's removeAbandoned() does that.
///
/// Functions return 0, or errno.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::filesystem::path &folder)
        : m_folder(folder)
    {}
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile();

    /// `permissions`: from the beginning, less what the process takes away.
    int create(mode_t permissions);
    int number() const { return m_file.number(); } ///< of the open file

    /// Has all that was written to the file on the disk.
    int synchronize();

    int replace(const std::filesystem::path &file);
    /// EEXIST where a file of that name is.
    int becomeNew(const std::filesystem::path &file);

    /// Removes what programs of this user that have ended left in the folder.
    static void removeAbandoned(const std::filesystem::path &folder);

private:
    std::filesystem::path m_folder;
    std::filesystem::path m_path; ///< empty: nothing is there
    FileDescriptor m_file;        ///< locked, as the sign that its program still runs
};

/// Writes all of the bytes. 0, or errno.
int writeAll(int descriptor, std::string_view bytes);

/// Has the system put what was written to the file or done in the folder on the disk. 0, or errno; a file
/// system that cannot is no error.
int synchronize(int descriptor);

} // namespace quillmark::platform
