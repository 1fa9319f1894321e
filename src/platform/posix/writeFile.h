// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <expected>
#include <filesystem>
#include <optional>
#include <string_view>

#include <sys/types.h>

namespace quillmark::platform {

/// What the system refused.
struct FileError
{
    int number = 0;             ///< errno
    std::filesystem::path file; ///< that was asked for
};

enum class Existing { Keep, Replace };

/// Writes the file whole or not at all, down to the disk: whatever fails, and whenever this program ends, a
/// file that stood there stands as it was. What an ended program has left of a new one is removed by the next
/// that is written in that folder. A symbolic link stays, and the file behind it is written. A device or a
/// pipe is written to, not replaced.
///
/// Existing::Keep never overwrites a file, not even one that comes into being meanwhile (EEXIST).
///
/// `permissions`: of the file. Without them a new file gets those that the process gives its files, and a
/// replaced one keeps its own.
///
/// Where the length of files is limited (RLIMIT_FSIZE), the process has to ignore SIGXFSZ, or it ends here.
std::expected<void, FileError> writeFile(const std::filesystem::path &file, std::string_view bytes,
                                         Existing existing, std::optional<mode_t> permissions = std::nullopt);

/// The file that the path leads to through symbolic links, be it there or not. ELOOP where they go round.
std::expected<std::filesystem::path, FileError> withLinksResolved(const std::filesystem::path &path);

/// Whether something stands there, at the end of links; what the system refused where that cannot be told.
std::expected<bool, FileError> exists(const std::filesystem::path &path);

/// Makes the folder and those above it that are missing, with these permissions. One that is there is fine.
std::expected<void, FileError> makeFolder(const std::filesystem::path &path, mode_t permissions);

} // namespace quillmark::platform
