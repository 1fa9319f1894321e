// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/posix/FileDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark::platform {

/// The files that the kernel and the system describe themselves with, under a root. Paths are absolute and
/// are taken below that root. Nothing here waits for a file that is not ready, and whatever cannot be read is
/// absent.
class Files
{
public:
    explicit Files(const std::filesystem::path &root);

    std::string pathOf(std::string_view path) const { return m_root + std::string(path); }

    FileDescriptor open(std::string_view path) const;

    /// The text of a file with one value, got in one read (an attribute in /sys fits in a page), without the
    /// white space and zero bytes around it. None also when nothing is left.
    std::optional<std::string> value(std::string_view path) const;

    /// The same as a number in the base, if all of the text is one.
    std::optional<std::int64_t> number(std::string_view path, int base = 10) const;

    /// A table, at most the first MiB.
    std::optional<std::string> text(std::string_view path) const;

    /// As text(), but in small steps that end as soon as what was read is enough, and after 64 KiB: for
    /// tables that the kernel writes while they are read.
    std::optional<std::string> beginning(std::string_view path, bool (*isEnough)(std::string_view)) const;

    bool exists(std::string_view path) const;

    /// What a symbolic link points to, as it stands there.
    std::optional<std::string> linkTarget(std::string_view path) const;

    /// The last component of what a symbolic link points to.
    std::optional<std::string> linkName(std::string_view path) const;

    /// The names in a folder that begin with the prefix, in no order. Empty when there is no such folder.
    std::vector<std::string> names(std::string_view folder, std::string_view prefix = {}) const;

private:
    std::string m_root; ///< without the final slash: empty for "/"
};

/// A file that stays open and is read again from its beginning each time. The kernel writes such a file anew
/// then.
class HeldFile
{
public:
    /// Longer than any line of a table of figures, or than any single value.
    static constexpr std::size_t figures = 1024;

    /// The kernel writes a table into a page, whole lines at a time. Where it left room for another line of
    /// `longestLine` bytes there was none, and the end need not be asked for.
    HeldFile(Files files, std::string path, std::size_t longestLine = 4096);

    /// The text, at most the first MiB; valid until the next call. None when it cannot be read or is empty; a
    /// file that was missing is looked for again.
    std::optional<std::string_view> read();

    /// Whether the kernel has given notice of a change since this was last asked, or the file is not open
    /// yet. Only some files give notice: the tables of mounts (proc_pid_mountinfo(5)).
    bool hasChanged();

private:
    Files m_files;
    std::string m_path;
    std::size_t m_longestLine;
    FileDescriptor m_file;
    std::vector<char> m_buffer;
};

/// A folder of devices that is asked for its names again and again. Devices come and go seldom, and to list a
/// folder costs more than to read a file in it: it is listed at the first question and at every tenth after.
class HeldFolder
{
public:
    HeldFolder(Files files, std::string path, std::string prefix = {});

    /// Whether the names are others than at the last question.
    bool hasChanged();

    /// Those that begin with the prefix, in their order; empty before the first question.
    const std::vector<std::string> &names() const { return m_names; }

private:
    Files m_files;
    std::string m_path;
    std::string m_prefix;
    std::vector<std::string> m_names;
    int m_questionsUntilListing = 0;
};

} // namespace quillmark::platform
