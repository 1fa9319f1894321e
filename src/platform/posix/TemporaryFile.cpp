// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/TemporaryFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

constexpr std::string_view namePrefix = ".quillmark-";
constexpr std::string_view digits = "0123456789abcdef";
constexpr std::size_t nameDigits = 16;

std::string randomName()
{
    std::random_device random;
    std::uniform_int_distribution<std::size_t> anyDigit(0, digits.size() - 1);
    std::string name(namePrefix);
    for (std::size_t i = 0; i < nameDigits; ++i)
        name += digits[anyDigit(random)];
    return name;
}

bool isOfOurs(std::string_view name)
{
    return name.size() == namePrefix.size() + nameDigits && name.starts_with(namePrefix) &&
           name.find_first_not_of(digits, namePrefix.size()) == std::string_view::npos;
}

/// False: somebody else holds it. File systems without locks have none that could be held.
bool lock(const FileDescriptor &file)
{
    return ::flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool isRemoved(const FileDescriptor &file)
{
    struct stat info = {};
    return ::fstat(file.number(), &info) == 0 && info.st_nlink == 0;
}

void removeIfAbandoned(const std::filesystem::path &path)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat info = {};
    if (file && ::fstat(file.number(), &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == ::geteuid() &&
        ::flock(file.number(), LOCK_EX | LOCK_NB) == 0)
        ::unlink(path.c_str());
}

} // namespace

TemporaryFile::~TemporaryFile()
{
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

int TemporaryFile::create(mode_t permissions)
{
    do { // again when another program took it for abandoned, in the moment before it was locked
        m_path = m_folder / randomName();
        m_file = FileDescriptor(::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions));
        if (!m_file) {
            const int error = errno;
            m_path.clear();
            return error;
        }
    } while (!lock(m_file) || isRemoved(m_file));
    return 0;
}

int TemporaryFile::synchronize()
{
    if (const int error = platform::synchronize(m_file.number()); error != 0)
        return error;
    // Some file systems say only at closing that they had no room. The file itself has to stay locked.
    FileDescriptor same(::fcntl(m_file.number(), F_DUPFD_CLOEXEC, 0));
    return same ? same.close() : 0;
}

int TemporaryFile::replace(const std::filesystem::path &file)
{
    if (std::rename(m_path.c_str(), file.c_str()) != 0)
        return errno;
    m_path.clear();
    return 0;
}

int TemporaryFile::becomeNew(const std::filesystem::path &file)
{
    if (::link(m_path.c_str(), file.c_str()) == 0)
        return 0;
    // Disks for exchange know no links.
    if (errno != EPERM && errno != ENOTSUP && errno != ENOSYS && errno != EMLINK)
        return errno;
    struct stat there = {};
    return ::lstat(file.c_str(), &there) == 0 ? EEXIST : replace(file);
}

void TemporaryFile::removeAbandoned(const std::filesystem::path &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        if (isOfOurs(entry->path().filename().native()))
            removeIfAbandoned(entry->path());
    }
}

int writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return errno;
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return 0;
}

int synchronize(int descriptor)
{
#ifdef F_FULLFSYNC // a Mac's fsync() leaves it to the drive when
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return 0;
#endif
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : errno;
}

} // namespace quillmark::platform
