// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/RootDevice.h"

#include <string_view>

namespace quillmark::platform {

namespace {

constexpr std::string_view deviceFolder = "/sys/class/block/";

/// "CRYPT-LUKS2-" of "CRYPT-LUKS2-0123…-name"; empty for a mapping that does not encrypt.
std::string_view encryptionKind(std::string_view identifier)
{
    constexpr std::string_view prefix = "CRYPT-";
    if (!identifier.starts_with(prefix))
        return {};
    const auto kind = identifier.substr(0, identifier.find('-', prefix.size()) + 1);
    // These two check what is read, and hide nothing.
    return kind == "CRYPT-VERITY-" || kind == "CRYPT-INTEGRITY-" ? std::string_view() : kind;
}

std::optional<std::string> encryptionOf(const Files &files, const std::string &device, int depth)
{
    constexpr int deepest = 8;
    const std::string folder = std::string(deviceFolder) + device;
    const auto identifier = files.value(folder + "/dm/uuid").value_or(std::string());
    if (const auto kind = encryptionKind(identifier); !kind.empty())
        return std::string(kind);
    auto parts = files.names(folder + "/slaves");
    // A partition lies in the folder of its disk, which may be put together from others.
    if (parts.empty())
        parts = files.names(folder + "/../slaves");
    std::optional<std::string> kind;
    for (const std::string &part : parts) {
        kind = depth < deepest ? encryptionOf(files, part, depth + 1) : std::nullopt;
        if (!kind)
            break;
    }
    return kind;
}

} // namespace

std::optional<std::string> rootDevice(const Files &files, const MountTable &mountTable)
{
    const auto root = mountTable.root();
    std::string name = root ? deviceName(files, *root) : std::string();
    if (name.empty() || !files.exists(std::string(deviceFolder) + name))
        return std::nullopt;
    return name;
}

std::optional<std::string> encryptionOf(const Files &files, const std::string &device)
{
    return encryptionOf(files, device, 0);
}

} // namespace quillmark::platform
