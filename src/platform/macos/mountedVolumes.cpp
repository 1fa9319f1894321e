// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/mountedVolumes.h"

#include <string_view>

#include <sys/mount.h>
#include <sys/param.h>

namespace quillmark::platform {

namespace {

std::string deviceOf(std::string_view source)
{
    constexpr std::string_view folder = "/dev/";
    return source.starts_with(folder) ? std::string(source.substr(folder.size())) : std::string();
}

MountedVolume volumeOf(const struct statfs &mounted)
{
    const auto blockSize = std::uint64_t{mounted.f_bsize};
    return {.place = mounted.f_mntonname,
            .device = deviceOf(mounted.f_mntfromname),
            .fileSystem = mounted.f_fstypename,
            .total = static_cast<std::int64_t>(mounted.f_blocks * blockSize),
            .available = static_cast<std::int64_t>(mounted.f_bavail * blockSize),
            .isReadOnly = (mounted.f_flags & MNT_RDONLY) != 0,
            .isLocal = (mounted.f_flags & MNT_LOCAL) != 0,
            .isBrowsable = (mounted.f_flags & MNT_DONTBROWSE) == 0};
}

} // namespace

std::optional<std::vector<MountedVolume>> mountedVolumes()
{
    const int expected = ::getfsstat(nullptr, 0, MNT_NOWAIT);
    if (expected < 0)
        return std::nullopt;
    // Room for what is mounted between the two calls.
    std::vector<struct statfs> list(static_cast<std::size_t>(expected) + 8);
    const int count =
        ::getfsstat(list.data(), static_cast<int>(list.size() * sizeof(struct statfs)), MNT_NOWAIT);
    if (count < 0)
        return std::nullopt;
    list.resize(static_cast<std::size_t>(count));
    std::vector<MountedVolume> volumes;
    volumes.reserve(list.size());
    for (const struct statfs &mounted : list)
        volumes.push_back(volumeOf(mounted));
    return volumes;
}

} // namespace quillmark::platform
