// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/writeFile.h"

#include "platform/posix/TemporaryFile.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

// All of these return 0, or errno.

int writeInto(const std::filesystem::path &device, std::string_view bytes)
{
    FileDescriptor file(::open(device.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    if (!file)
        return errno;
    const int error = writeAll(file.number(), bytes);
    return error == 0 ? file.close() : error;
}

/// For the same people as the file that is to be replaced, and from then on with these permissions.
int handOver(const TemporaryFile &file, const struct stat *replaced, mode_t permissions)
{
    // Only root may give a file away, and only root has to.
    if (replaced) [[maybe_unused]]
        const int owned = ::fchown(file.number(), replaced->st_uid, replaced->st_gid);
    return ::fchmod(file.number(), permissions) == 0 ? 0 : errno;
}

void synchronizeFolder(const std::filesystem::path &folder)
{
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_CLOEXEC));
    if (opened)
        synchronize(opened.number()); // the file is whole either way: at worst it is the one from before
}

/// `replaced`: the file that stands there, if any.
int writeBeside(const std::filesystem::path &file, std::string_view bytes, Existing existing,
                std::optional<mode_t> permissions, const struct stat *replaced)
{
    const auto folder = file.has_parent_path() ? file.parent_path() : ".";
    TemporaryFile::removeAbandoned(folder);
    if (replaced && !permissions)
        permissions = replaced->st_mode & 0777;
    TemporaryFile temporary(folder);
    int error = temporary.create(permissions ? 0600 : 0666);
    if (error == 0 && permissions)
        error = handOver(temporary, replaced, *permissions);
    if (error == 0)
        error = writeAll(temporary.number(), bytes);
    if (error == 0)
        error = temporary.synchronize();
    if (error == 0)
        error = existing == Existing::Replace ? temporary.replace(file) : temporary.becomeNew(file);
    if (error == 0)
        synchronizeFolder(folder);
    return error;
}

bool isStream(const struct stat &there)
{
    return !S_ISDIR(there.st_mode) && !S_ISREG(there.st_mode);
}

int write(const std::filesystem::path &file, std::string_view bytes, Existing existing,
          std::optional<mode_t> permissions)
{
    struct stat there = {};
    if (::stat(file.c_str(), &there) != 0)
        return errno == ENOENT ? writeBeside(file, bytes, existing, permissions, nullptr) : errno;
    if (S_ISDIR(there.st_mode))
        return EISDIR;
    if (existing == Existing::Keep)
        return EEXIST;
    // A folder in which one may write would let a protected file be replaced.
    if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0)
        return errno;
    return writeBeside(file, bytes, existing, permissions, &there);
}

int make(const std::filesystem::path &folder, mode_t permissions)
{
    const auto makeThis = [&] { return ::mkdir(folder.c_str(), permissions) == 0 ? 0 : errno; };
    int error = makeThis();
    if (error == ENOENT && folder.has_relative_path()) {
        error = make(folder.parent_path(), permissions);
        if (error == 0)
            error = makeThis();
    }
    std::error_code ignored;
    if (error == EEXIST)
        return std::filesystem::is_directory(folder, ignored) ? 0 : ENOTDIR;
    return error;
}

std::expected<void, FileError> outcome(int error, const std::filesystem::path &file)
{
    if (error == 0)
        return {};
    return std::unexpected(FileError{.number = error, .file = file});
}

} // namespace

std::expected<void, FileError> writeFile(const std::filesystem::path &file, std::string_view bytes,
                                         Existing existing, std::optional<mode_t> permissions)
{
    if (!file.has_filename())
        return outcome(EISDIR, file);
    // Not through its links: that of an open pipe (/dev/stdout, /proc/self/fd/1) names nothing that has a
    // path.
    if (struct stat there = {}; ::stat(file.c_str(), &there) == 0 && isStream(there))
        return outcome(writeInto(file, bytes), file);
    const auto target = withLinksResolved(file);
    return target ? outcome(write(*target, bytes, existing, permissions), file)
                  : std::unexpected(target.error());
}

std::expected<std::filesystem::path, FileError> withLinksResolved(const std::filesystem::path &path)
{
    constexpr int mostLinks = 40; // as the system itself follows
    std::error_code ignored;
    auto file = path;
    for (int i = 0; i < mostLinks; ++i) {
        if (!std::filesystem::is_symlink(file, ignored))
            return file;
        file = file.parent_path() / std::filesystem::read_symlink(file, ignored);
    }
    return std::unexpected(FileError{.number = ELOOP, .file = path});
}

std::expected<bool, FileError> exists(const std::filesystem::path &path)
{
    struct stat there = {};
    if (::stat(path.c_str(), &there) == 0)
        return true;
    if (errno == ENOENT)
        return false;
    return std::unexpected(FileError{.number = errno, .file = path});
}

std::expected<void, FileError> makeFolder(const std::filesystem::path &path, mode_t permissions)
{
    return outcome(make(path, permissions), path);
}

} // namespace quillmark::platform
