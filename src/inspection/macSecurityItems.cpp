// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"
#include "inspection/helperVerdicts.h"
#include "inspection/rows.h"
#include "inspection/securityItems.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ranges>
#include <string_view>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

namespace {

using platform::PropertyMap;

constexpr std::int32_t firstSystemWithLockdownMode = 13;

/// Null when it is missing or is null itself.
const platform::PropertyValue *property(const PropertyMap &properties, std::string_view key)
{
    const auto found = properties.find(key);
    const bool isThere =
        found != properties.end() && !std::holds_alternative<std::nullptr_t>(found->second.value);
    return isThere ? &found->second : nullptr;
}

bool hasSystemRole(const PropertyMap &volume)
{
    const auto isSystem = [](const platform::PropertyValue &role) {
        const auto *name = std::get_if<std::string>(&role.value);
        return name && *name == "System";
    };
    const auto *role = property(volume, "Role");
    const auto *roles = platform::find<platform::PropertyList>(volume, "Role");
    return roles ? std::ranges::any_of(*roles, isSystem) : role && isSystem(*role);
}

std::optional<Verdict> sealVerdict(const platform::PropertyValue &sealed)
{
    const auto *flag = std::get_if<bool>(&sealed.value);
    const auto *word = std::get_if<std::string>(&sealed.value);
    if ((flag != nullptr && *flag) || (word && *word == "Yes"))
        //: Of the system volume, which is signed.
        return Verdict{Text::tr("Sealed"), CapabilityStatus::Supported};
    if (flag != nullptr || (word && *word == "No"))
        return Verdict{Text::tr("Not sealed"), CapabilityStatus::Warning};
    if (word && *word == "Broken")
        return Verdict{Text::tr("Broken"), CapabilityStatus::Warning};
    return std::nullopt;
}

QList<CapabilityItem> sealedSystemItems(const platform::Machine &machine)
{
    // AppleAPFSVolume, Sealed
    for (const auto &volume : machine.registry().services("AppleAPFSVolume")) {
        const auto *sealed = property(volume, "Sealed");
        if (sealed && hasSystemRole(volume))
            return {judged(u"sealedSystem"_s, Text::tr("Sealed system volume"), sealVerdict(*sealed))};
    }
    return {};
}

std::optional<Verdict> secureBootVerdict(const platform::Bytes &policy)
{
    if (policy.size() != 1)
        return std::nullopt;
    switch (std::to_integer<int>(policy.front())) {
    case 0:
        return Verdict{Text::tr("No security"), CapabilityStatus::Warning};
    case 1:
        return Verdict{Text::tr("Medium security"), CapabilityStatus::Warning};
    case 2:
        return Verdict{Text::tr("Full security"), CapabilityStatus::Supported};
    default:
        return std::nullopt;
    }
}

/// Only an Intel Mac with a T2 chip keeps the policy there.
QList<CapabilityItem> secureBootItems(const platform::Machine &machine)
{
    // IODeviceTree:/options, AppleSecureBootPolicy
    for (const auto &options : machine.registry().services("IODeviceTree:/options")) {
        if (const auto *policy = platform::find<platform::Bytes>(
                options, "94b73556-2197-4702-82a8-3e1337dafbfb:AppleSecureBootPolicy"))
            return {judged(u"secureBoot"_s, Text::tr("Secure boot"), secureBootVerdict(*policy))};
    }
    return {};
}

/// Four bytes, the lowest first; none for anything else.
std::optional<std::uint32_t> littleEndian(const PropertyMap &properties, std::string_view key)
{
    const auto *bytes = platform::find<platform::Bytes>(properties, key);
    if (!bytes || bytes->size() != sizeof(std::uint32_t))
        return std::nullopt;
    std::uint32_t number = 0;
    for (const auto byte : *bytes | std::views::reverse)
        number = number << 8 | std::to_integer<std::uint32_t>(byte);
    return number;
}

/// Whether the chip beside an Intel processor is one with an enclave; none when that cannot be told.
std::optional<bool> coprocessorHasEnclave(const platform::Registry &registry)
{
    constexpr std::uint32_t firstWithEnclave = 0x10000; // T1
    constexpr std::string_view key = "apple-coprocessor-version";
    // IODeviceTree:/efi/platform, apple-coprocessor-version
    const auto entries = registry.services("IODeviceTree:/efi/platform");
    if (entries.empty() || !property(entries.front(), key))
        return false;
    const auto version = littleEndian(entries.front(), key);
    return version ? std::optional(*version >= firstWithEnclave) : std::nullopt;
}

std::optional<Verdict> secureEnclaveVerdict(const platform::Registry &registry, bool isAppleSilicon)
{
    if (!registry.isReadable())
        return std::nullopt;
    // AppleSEPManager
    const auto hasEnclave = isAppleSilicon ? std::optional(!registry.services("AppleSEPManager").empty())
                                           : coprocessorHasEnclave(registry);
    return hasEnclave ? std::optional(availability(*hasEnclave)) : std::nullopt;
}

std::optional<Verdict> touchIdVerdict(const platform::Biometry &biometry, bool hasBattery)
{
    // LAError
    constexpr std::int64_t passcodeNotSet = -5;
    constexpr std::int64_t notEnrolled = -7;
    constexpr std::int64_t lockedOut = -8;
    constexpr std::int64_t notPaired = -12;
    constexpr std::int64_t disconnected = -13;
    constexpr std::int64_t touchId = 1; // LABiometryTypeTouchID
    const bool isTouchId = biometry.biometryType == touchId;
    if (!isTouchId && biometry.biometryType != 0)
        return std::nullopt;
    if (biometry.canEvaluate)
        return isTouchId ? std::optional(availability(true)) : std::nullopt;
    if (biometry.error == notPaired || biometry.error == disconnected)
        return Verdict{Text::tr("Not connected")};
    if (!isTouchId)
        return hasBattery ? availability(false) : Verdict{Text::tr("None (desktop)")};
    if (biometry.error == notEnrolled || biometry.error == passcodeNotSet)
        return Verdict{Text::tr("Available, not set up"), CapabilityStatus::Supported};
    if (biometry.error == lockedOut)
        return Verdict{Text::tr("Available, locked"), CapabilityStatus::Supported};
    return std::nullopt;
}

std::optional<Verdict> touchIdVerdict(const platform::Machine &machine,
                                      const std::optional<platform::Biometry> &biometry)
{
    return biometry ? touchIdVerdict(*biometry, DeviceProbe::hasBattery(machine)) : std::nullopt;
}

} // namespace

QList<CapabilityItem> macSecurityItems(const platform::Machine &machine, bool isGuest)
{
    const auto state = machine.security().read();
    const bool isAppleSilicon = DeviceProbe::isAppleSilicon(machine);
    // The disk of a virtual machine is a file of its host's.
    const bool isDiskEncrypted = isAppleSilicon && !isGuest;
    const Verdict ofGuest{Text::tr("Virtual machine")};
    QList<CapabilityItem> items = {
        // fdesetup status
        judged(u"fileVault"_s, u"FileVault"_s, fileVaultVerdict(state.fdesetup, isDiskEncrypted)),
        // csrutil status
        judged(u"systemIntegrityProtection"_s, Text::tr("System Integrity Protection"),
               integrityProtectionVerdict(state.csrutil)),
    };
    items += sealedSystemItems(machine);
    // spctl --status
    items += judged(u"gatekeeper"_s, u"Gatekeeper"_s, gatekeeperVerdict(state.spctl));
    // socketfilterfw --getglobalstate
    items += judged(u"firewall"_s, Text::tr("Firewall"), firewallVerdict(state.socketfilterfw));
    if (!isAppleSilicon)
        items += secureBootItems(machine);
    items += judged(u"secureEnclave"_s, Text::tr("Secure Enclave"),
                    isGuest ? ofGuest : secureEnclaveVerdict(machine.registry(), isAppleSilicon));
    // LAContext canEvaluatePolicy:, then biometryType
    items += judged(u"touchID"_s, u"Touch ID"_s, isGuest ? ofGuest : touchIdVerdict(machine, state.biometry));
    // CFBundleShortVersionString of XProtect.bundle
    if (state.xprotectVersion && !state.xprotectVersion->empty())
        items += fact(u"xprotect"_s, u"XProtect"_s, QString::fromStdString(*state.xprotectVersion));
    // LDMGlobalEnabled
    if (machine.system().operatingSystem().major >= firstSystemWithLockdownMode)
        items += fact(u"lockdownMode"_s, Text::tr("Lockdown Mode"), onOrOff(state.lockdownMode));
    if (isGuest)
        items += fact(u"virtualMachine"_s, Text::tr("Virtual machine"), yesOrNo(true));
    return items;
}

} // namespace quillmark::inspection
