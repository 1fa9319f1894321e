// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Command.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// What LAContext says after canEvaluatePolicy: was asked for biometrics.
struct Biometry
{
    bool canEvaluate = false;
    std::int64_t biometryType = 0; ///< 0 none, 1 Touch ID
    std::optional<std::int64_t>
        error; ///< LAError: −5 no passcode, −7 not set up, −8 locked, −12, −13 not connected

    bool operator==(const Biometry &) const = default;
};

/// The state of the machine's protections. Whatever is absent could not be read; absent never means off.
struct SecurityState
{
    std::optional<CommandAnswer> fdesetup;       ///< fdesetup status
    std::optional<CommandAnswer> csrutil;        ///< csrutil status
    std::optional<CommandAnswer> spctl;          ///< spctl --status
    std::optional<CommandAnswer> socketfilterfw; ///< socketfilterfw --getglobalstate
    std::optional<Biometry> biometry;
    std::optional<std::string> xprotectVersion;
    std::optional<bool> lockdownMode;

    // Linux
    std::optional<std::uint8_t> efiSecureBoot; ///< value of the firmware's variable SecureBoot: 1 on, 0 off
    bool hasEfi = false;                       ///< started by EFI, so that the variable may be expected
    bool rootIsBlockDevice = false; ///< the root file system lies on one, so that it could be encrypted
    /// "CRYPT-LUKS2-", what stands before the identifier. Absent: nothing below the root is encrypted.
    std::optional<std::string> rootDeviceMapperUuidPrefix;
    bool tpmIsKnown = false; ///< the kernel tells of a TPM, so that no version means no TPM
    std::optional<int> tpmVersionMajor;
    std::optional<std::string> lsm; ///< /sys/kernel/security/lsm: "lockdown,capability,apparmor"
    std::optional<bool> selinuxEnforcing;
    std::optional<std::vector<std::string>> cpuVulnerabilities; ///< the texts of the kernel's files

    bool operator==(const SecurityState &) const = default;
};

class Security
{
public:
    virtual ~Security() = default;

    /// Everything at once: the helper programs among it run side by side and have two seconds together. Never
    /// prompts.
    virtual SecurityState read() const = 0;
};

} // namespace quillmark::platform
