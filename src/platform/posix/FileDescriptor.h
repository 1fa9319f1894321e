// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

namespace quillmark::platform {

/// Owns an open file descriptor; may hold none.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number)
        : m_number(number)
    {}
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    ~FileDescriptor();

    explicit operator bool() const { return m_number >= 0; }
    int number() const { return m_number; }

    /// Closes it early, for who has to know how that went: 0, or errno. Some file systems say only now that
    /// they had no room.
    int close();

private:
    int m_number = -1;
};

} // namespace quillmark::platform
