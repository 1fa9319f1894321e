// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/Files.h"

#include "platform/linux/TextFields.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

constexpr std::size_t pageBytes = 4096;
constexpr std::size_t tableLimit = std::size_t{1024} * 1024;
constexpr std::size_t beginningLimit = std::size_t{64} * 1024;
constexpr std::size_t beginningStep = 1024;
constexpr int questionsBetweenListings = 9;

ssize_t readSome(const FileDescriptor &file, char *buffer, std::size_t size)
{
    ssize_t count = 0;
    do {
        count = ::read(file.number(), buffer, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

std::optional<std::string> readSteps(const FileDescriptor &file, std::size_t step, std::size_t limit,
                                     bool (*isEnough)(std::string_view))
{
    std::string text;
    std::size_t used = 0;
    while (used < limit && (used == 0 || !isEnough || !isEnough(std::string_view(text).substr(0, used)))) {
        if (text.size() < used + step)
            text.resize(isEnough ? used + step : text.size() * 2 + step);
        const ssize_t count = readSome(file, text.data() + used, std::min(text.size() - used, limit - used));
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        used += static_cast<std::size_t>(count);
    }
    text.resize(used);
    return text;
}

} // namespace

Files::Files(const std::filesystem::path &root)
    : m_root(root.string())
{
    while (m_root.ends_with('/'))
        m_root.pop_back();
}

FileDescriptor Files::open(std::string_view path) const
{
    // Not to block matters where a named pipe stands in for a file.
    return FileDescriptor(::open(pathOf(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
}

std::optional<std::string> Files::value(std::string_view path) const
{
    const FileDescriptor file = open(path);
    if (!file)
        return std::nullopt;
    std::array<char, pageBytes> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
    const ssize_t count = readSome(file, buffer.data(), buffer.size());
    if (count <= 0)
        return std::nullopt;
    const std::string_view text = trimmed({buffer.data(), static_cast<std::size_t>(count)});
    return text.empty() ? std::nullopt : std::optional<std::string>(text);
}

std::optional<std::int64_t> Files::number(std::string_view path, int base) const
{
    const std::optional<std::string> text = value(path);
    return text ? parseNumber<std::int64_t>(*text, base) : std::nullopt;
}

std::optional<std::string> Files::text(std::string_view path) const
{
    const FileDescriptor file = open(path);
    return file ? readSteps(file, pageBytes, tableLimit, nullptr) : std::nullopt;
}

std::optional<std::string> Files::beginning(std::string_view path, bool (*isEnough)(std::string_view)) const
{
    const FileDescriptor file = open(path);
    return file ? readSteps(file, beginningStep, beginningLimit, isEnough) : std::nullopt;
}

bool Files::exists(std::string_view path) const
{
    return ::access(pathOf(path).c_str(), F_OK) == 0;
}

std::optional<std::string> Files::linkTarget(std::string_view path) const
{
    std::array<char, pageBytes> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): readlink() fills it
    const ssize_t count = ::readlink(pathOf(path).c_str(), buffer.data(), buffer.size());
    if (count <= 0)
        return std::nullopt;
    return std::string(buffer.data(), static_cast<std::size_t>(count));
}

std::optional<std::string> Files::linkName(std::string_view path) const
{
    const auto target = linkTarget(path);
    return target ? std::optional<std::string>(lastComponent(*target)) : std::nullopt;
}

std::vector<std::string> Files::names(std::string_view folder, std::string_view prefix) const
{
    std::vector<std::string> found;
    DIR *directory = ::opendir(pathOf(folder).c_str());
    if (!directory)
        return found;
    while (const dirent *entry = ::readdir(directory)) {
        const std::string_view name = entry->d_name;
        if (name.starts_with(prefix) && name != "." && name != "..")
            found.emplace_back(name);
    }
    ::closedir(directory);
    return found;
}

HeldFile::HeldFile(Files files, std::string path, std::size_t longestLine)
    : m_files(std::move(files))
    , m_path(std::move(path))
    , m_longestLine(longestLine)
    , m_buffer(pageBytes)
{}

std::optional<std::string_view> HeldFile::read()
{
    if (!m_file)
        m_file = m_files.open(m_path);
    std::size_t used = 0;
    while (m_file) {
        const ssize_t count = ::pread(m_file.number(), m_buffer.data() + used, m_buffer.size() - used,
                                      static_cast<off_t>(used));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            m_file = FileDescriptor();
            return std::nullopt;
        }
        const bool isWhole = used == 0 && static_cast<std::size_t>(count) + m_longestLine <= pageBytes;
        used += static_cast<std::size_t>(count);
        const bool isFull = used == m_buffer.size();
        if (count == 0 || isWhole || (isFull && used >= tableLimit))
            break;
        if (isFull)
            m_buffer.resize(used * 2);
    }
    return used == 0 ? std::nullopt : std::optional<std::string_view>({m_buffer.data(), used});
}

bool HeldFile::hasChanged()
{
    if (!m_file)
        return true;
    pollfd file = {m_file.number(), POLLPRI, 0};
    return ::poll(&file, 1, 0) > 0 && (file.revents & (POLLPRI | POLLERR)) != 0;
}

HeldFolder::HeldFolder(Files files, std::string path, std::string prefix)
    : m_files(std::move(files))
    , m_path(std::move(path))
    , m_prefix(std::move(prefix))
{}

bool HeldFolder::hasChanged()
{
    if (m_questionsUntilListing > 0) {
        --m_questionsUntilListing;
        return false;
    }
    m_questionsUntilListing = questionsBetweenListings;
    std::vector<std::string> names = m_files.names(m_path, m_prefix);
    std::ranges::sort(names);
    if (names == m_names)
        return false;
    m_names = std::move(names);
    return true;
}

} // namespace quillmark::platform
