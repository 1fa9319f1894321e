// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/FileDescriptor.h"

#include <cerrno>

#include <unistd.h>

namespace quillmark::platform {

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    std::swap(m_number, other.m_number);
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    if (m_number >= 0)
        ::close(m_number);
}

int FileDescriptor::close()
{
    return ::close(std::exchange(m_number, -1)) == 0 ? 0 : errno;
}

} // namespace quillmark::platform
