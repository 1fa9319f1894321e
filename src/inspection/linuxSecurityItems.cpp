// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/Text.h"
#include "inspection/rows.h"
#include "inspection/securityItems.h"

#include <algorithm>
#include <string_view>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using platform::SecurityState;

std::optional<Verdict> secureBootVerdict(const SecurityState &state)
{
    if (state.efiSecureBoot == 1)
        return Verdict{Text::tr("On"), CapabilityStatus::Supported};
    if (state.efiSecureBoot == 0)
        return Verdict{Text::tr("Off"), CapabilityStatus::Warning};
    return std::nullopt;
}

Verdict diskEncryptionVerdict(const SecurityState &state)
{
    const std::string_view kind =
        state.rootDeviceMapperUuidPrefix ? std::string_view(*state.rootDeviceMapperUuidPrefix) : "";
    if (kind.starts_with("CRYPT-LUKS2"))
        return {u"LUKS2"_s, CapabilityStatus::Supported};
    if (kind.starts_with("CRYPT-LUKS1"))
        return {u"LUKS1"_s, CapabilityStatus::Supported};
    // Encrypted without LUKS: its forms have no names that people know.
    if (kind.starts_with("CRYPT-"))
        return {u"dm-crypt"_s, CapabilityStatus::Supported};
    return {Text::tr("Off"), CapabilityStatus::Warning};
}

std::optional<Verdict> tpmVerdict(const SecurityState &state, bool isGuest)
{
    if (state.tpmVersionMajor == 2)
        return Verdict{u"TPM 2.0"_s, CapabilityStatus::Supported};
    if (state.tpmVersionMajor == 1)
        return Verdict{u"TPM 1.2"_s, CapabilityStatus::Supported};
    if (state.tpmVersionMajor || !state.tpmIsKnown)
        return std::nullopt;
    return isGuest ? Verdict{Text::tr("Virtual machine")} : availability(false);
}

bool lists(std::string_view modules, std::string_view wanted)
{
    while (!modules.empty()) {
        const auto name = modules.substr(0, modules.find(','));
        if (name == wanted)
            return true;
        modules.remove_prefix(std::min(name.size() + 1, modules.size()));
    }
    return false;
}

std::optional<Verdict> accessControlVerdict(std::string_view modules, std::optional<bool> isEnforcing)
{
    if (lists(modules, "selinux")) {
        if (!isEnforcing)
            return std::nullopt;
        return *isEnforcing ? Verdict{Text::tr("SELinux, enforcing"), CapabilityStatus::Supported}
                            : Verdict{Text::tr("SELinux, permissive"), CapabilityStatus::Warning};
    }
    if (lists(modules, "apparmor"))
        return Verdict{u"AppArmor"_s, CapabilityStatus::Supported};
    return Verdict{Text::tr("None")};
}

Verdict vulnerabilitiesVerdict(const std::vector<std::string> &texts)
{
    const auto count =
        std::ranges::count_if(texts, [](const std::string &text) { return text.starts_with("Vulnerable"); });
    if (count == 0)
        return {Text::tr("All mitigated"), CapabilityStatus::Supported};
    return {Text::tr("%n not mitigated", nullptr, static_cast<int>(count)), CapabilityStatus::Warning};
}

} // namespace

QList<CapabilityItem> linuxSecurityItems(const platform::Machine &machine, bool isGuest)
{
    const auto state = machine.security().read();
    QList<CapabilityItem> items;
    // /sys/firmware/efi/efivars/SecureBoot-…
    if (state.hasEfi)
        items += judged(u"secureBoot"_s, Text::tr("Secure boot"), secureBootVerdict(state));
    if (isGuest)
        items += fact(u"virtualMachine"_s, Text::tr("Virtual machine"), yesOrNo(true));
    // /proc/self/mountinfo, then /sys/class/block/*/dm/uuid downwards
    if (state.rootIsBlockDevice)
        items += judged(u"diskEncryption"_s, Text::tr("Disk encryption"), diskEncryptionVerdict(state));
    // /sys/class/tpm
    if (machine.system().instructionSet() == platform::InstructionSet::X86_64)
        items += judged(u"tpm"_s, u"TPM"_s, tpmVerdict(state, isGuest));
    // /sys/kernel/security/lsm, /sys/fs/selinux/enforce
    if (state.lsm)
        items += judged(u"accessControl"_s, Text::tr("Access control"),
                        accessControlVerdict(*state.lsm, state.selinuxEnforcing));
    // /sys/devices/system/cpu/vulnerabilities
    if (state.cpuVulnerabilities && !state.cpuVulnerabilities->empty())
        items += judged(u"cpuVulnerabilities"_s, Text::tr("Processor vulnerabilities"),
                        vulnerabilitiesVerdict(*state.cpuVulnerabilities));
    // A sandbox hides it all.
    if (items.isEmpty())
        items += judged(u"diskEncryption"_s, Text::tr("Disk encryption"), std::nullopt);
    return items;
}

} // namespace quillmark::inspection
