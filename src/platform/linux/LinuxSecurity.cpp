// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxSecurity.h"

#include "platform/linux/RootDevice.h"

#include <algorithm>
#include <limits>

namespace quillmark::platform {

namespace {

void readSecureBoot(const Files &files, SecurityState &state)
{
    // EFI_GLOBAL_VARIABLE; four bytes of attributes come before the value.
    constexpr std::string_view variable =
        "/sys/firmware/efi/efivars/SecureBoot-8be4df61-93ca-11d2-aa0d-00e098032b8c";
    constexpr std::size_t attributes = 4;
    state.hasEfi = files.exists("/sys/firmware/efi");
    const auto bytes = state.hasEfi ? files.text(variable) : std::nullopt;
    if (bytes && bytes->size() == attributes + 1)
        state.efiSecureBoot = static_cast<std::uint8_t>(bytes->back());
}

void readTpm(const Files &files, SecurityState &state)
{
    const auto version = files.number("/sys/class/tpm/tpm0/tpm_version_major");
    if (version && *version > 0 && *version <= std::numeric_limits<int>::max())
        state.tpmVersionMajor = static_cast<int>(*version);
    // An earlier kernel lists the TPM without its version.
    state.tpmIsKnown = state.tpmVersionMajor.has_value() ||
                       (files.exists("/sys/class") && !files.exists("/sys/class/tpm/tpm0"));
}

std::optional<std::vector<std::string>> readVulnerabilities(const Files &files)
{
    constexpr std::string_view folder = "/sys/devices/system/cpu/vulnerabilities/";
    auto names = files.names(folder);
    std::ranges::sort(names);
    std::vector<std::string> texts;
    for (const std::string &name : names) {
        if (auto text = files.value(std::string(folder) + name))
            texts.push_back(std::move(*text));
    }
    return texts.empty() ? std::nullopt : std::optional(std::move(texts));
}

std::optional<bool> readEnforcing(const Files &files)
{
    const auto enforcing = files.number("/sys/fs/selinux/enforce");
    return enforcing == 0 || enforcing == 1 ? std::optional(enforcing == 1) : std::nullopt;
}

} // namespace

LinuxSecurity::LinuxSecurity(const Files &files, const MountTable &mountTable)
    : m_files(files)
    , m_mountTable(mountTable)
{}

SecurityState LinuxSecurity::read() const
{
    SecurityState state;
    readSecureBoot(m_files, state);
    if (const auto device = rootDevice(m_files, m_mountTable)) {
        state.rootIsBlockDevice = true;
        state.rootDeviceMapperUuidPrefix = encryptionOf(m_files, *device);
    }
    readTpm(m_files, state);
    state.lsm = m_files.value("/sys/kernel/security/lsm");
    state.selinuxEnforcing = readEnforcing(m_files);
    state.cpuVulnerabilities = readVulnerabilities(m_files);
    return state;
}

} // namespace quillmark::platform
