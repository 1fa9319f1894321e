// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/FileLock.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

using Clock = std::chrono::steady_clock;

/// 0, or errno; EWOULDBLOCK when another program still holds the lock at `end`.
int lockUntil(int descriptor, Clock::time_point end)
{
    constexpr std::chrono::milliseconds pause(10);
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR)
            continue;
        if (errno == ENOLCK || errno == ENOTSUP || errno == ENOSYS)
            return 0; // a file system without locks: better unlocked than never saved
        if (errno != EWOULDBLOCK || Clock::now() >= end)
            return errno;
        std::this_thread::sleep_for(pause);
    }
    return 0;
}

// The holder's process number stands in the lock file, for the message of whoever is refused.

void signLock(int descriptor)
{
    const auto text = std::to_string(getpid()) + '\n';
    if (ftruncate(descriptor, 0) == 0)
        static_cast<void>(!pwrite(descriptor, text.data(), text.size(), 0)); // nothing depends on it
}

int signatureOf(int descriptor)
{
    std::array<char, 16> text{};
    const int process = pread(descriptor, text.data(), text.size() - 1, 0) > 0 ? std::atoi(text.data()) : 0;
    // Whoever locks it without signing it holds it under the name of one that has ended.
    return process > 0 && (kill(process, 0) == 0 || errno == EPERM) ? process : 0;
}

} // namespace

std::expected<bool, FileLock::Refusal> FileLock::take(const std::string &path,
                                                      std::chrono::milliseconds patience)
{
    if (isInPlace(path))
        return false;
    const auto end = Clock::now() + patience;
    do { // again when the file was removed between opening and locking it
        m_file = FileDescriptor(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!m_file)
            return std::unexpected(Refusal{.error = errno});
        if (const int error = lockUntil(m_file.number(), end); error != 0) {
            const Refusal refusal{.error = error == EWOULDBLOCK ? 0 : error,
                                  .holder = error == EWOULDBLOCK ? signatureOf(m_file.number()) : 0};
            release();
            return std::unexpected(refusal);
        }
    } while (!isInPlace(path));
    signLock(m_file.number());
    return true;
}

bool FileLock::isInPlace(const std::string &path) const
{
    struct stat held = {};
    struct stat found = {};
    return m_file && fstat(m_file.number(), &held) == 0 && stat(path.c_str(), &found) == 0 &&
           held.st_dev == found.st_dev && held.st_ino == found.st_ino;
}

} // namespace quillmark::platform
