// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"

#include "inspection/Text.h"
#include "inspection/rows.h"

#include <algorithm>
#include <cstring>

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

namespace {

template <typename Integer>
std::int64_t widened(const platform::Bytes &bytes)
{
    Integer number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

/// The name that goes with a version; empty when there is none.
QString versionName(const platform::OperatingSystem &system)
{
    if (system.name != "macOS")
        return {};
    switch (system.major) {
    case 13:
        return u"Ventura"_s;
    case 14:
        return u"Sonoma"_s;
    case 15:
        return u"Sequoia"_s;
    case 26:
        return u"Tahoe"_s;
    default:
        return {};
    }
}

} // namespace

std::optional<QString> sysctlString(const platform::Machine &machine, std::string_view name)
{
    const auto bytes = machine.kernelValues().read(name);
    if (!bytes)
        return std::nullopt;
    const auto end = std::ranges::find(*bytes, std::byte{0});
    return QString::fromUtf8(reinterpret_cast<const char *>(bytes->data()), end - bytes->begin());
}

std::optional<std::int64_t> sysctlInt(const platform::Machine &machine, std::string_view name)
{
    const auto bytes = machine.kernelValues().read(name);
    if (bytes && bytes->size() == sizeof(std::int64_t))
        return widened<std::int64_t>(*bytes);
    if (bytes && bytes->size() == sizeof(std::int32_t))
        return widened<std::int32_t>(*bytes);
    return std::nullopt;
}

bool sysctlFlag(const platform::Machine &machine, std::string_view name)
{
    return sysctlInt(machine, name) == 1;
}

bool isMac(const platform::Machine &machine)
{
    return machine.system().operatingSystem().name == "macOS";
}

bool isAppleSilicon(const platform::Machine &machine)
{
    return sysctlFlag(machine, "hw.optional.arm64");
}

bool isVirtualMachine(const platform::Machine &machine)
{
    return sysctlFlag(machine, "kern.hv_vmm_present");
}

platform::InstructionSet instructionSet(const platform::Machine &machine)
{
    using platform::InstructionSet;
    if (const auto own = machine.system().instructionSet())
        return *own;
    return isAppleSilicon(machine) ? InstructionSet::Arm64 : InstructionSet::X86_64;
}

QString chipName(const platform::Machine &machine)
{
    if (const auto brand = sysctlString(machine, "machdep.cpu.brand_string"))
        return *brand;
    if (const auto word = machine.system().words().processor)
        return QString::fromStdString(*word);
    return isAppleSilicon(machine) ? u"Apple Silicon"_s : u"Intel"_s;
}

QString osVersionDescription(const platform::Machine &machine)
{
    if (const auto word = machine.system().words().operatingSystem)
        return QString::fromStdString(*word);
    const auto version = machine.system().operatingSystem();
    QString text =
        u"%1 %2.%3"_s.arg(QString::fromStdString(version.name)).arg(version.major).arg(version.minor);
    if (version.patch >= 1)
        text += u".%1"_s.arg(version.patch);
    if (const auto name = versionName(version); !name.isEmpty())
        text += QLatin1Char(' ') + name;
    if (const auto build = sysctlString(machine, "kern.osversion"))
        text += u" (%1)"_s.arg(*build);
    return text;
}

std::optional<std::int64_t> batteryCycleCount(const platform::Machine &machine)
{
    const auto services = machine.registry().services("AppleSmartBattery");
    return services.empty() ? std::nullopt : platform::get<std::int64_t>(services.front(), "CycleCount");
}

bool hasBattery(const platform::Machine &machine)
{
    return batteryReading(machine).has_value();
}

std::optional<BatteryInfo> batteryInfo(const platform::Machine &machine)
{
    const auto reading = batteryReading(machine);
    if (!reading)
        return std::nullopt;
    BatteryInfo info{.level = reading->level.value_or(0),
                     .isCharging = reading->isCharging.value_or(false),
                     .onAC = reading->onAC.value_or(false),
                     .cycleCount = batteryCycleCount(machine)};
    if (reading->health)
        info.health = QString::fromStdString(*reading->health);
    return info;
}

std::optional<battery::BatteryReading> batteryReading(const platform::Machine &machine)
{
    return battery::readBattery(machine, isAppleSilicon(machine));
}

std::optional<int> highestAppleFamily(const platform::GraphicsDevice &device)
{
    constexpr int newest = 12;
    constexpr int appleFamilies = 1000; // MTLGPUFamilyApple1 is 1001
    for (int n = newest; n >= 1; --n) {
        if (device.supportsFamily(appleFamilies + n))
            return n;
    }
    return std::nullopt;
}

QSet<std::uint32_t> hardwareEncoders(const platform::Machine &machine)
{
    return hardwareEncoders(machine.media().videoEncoders().value_or(std::vector<platform::VideoEncoder>()));
}

QSet<std::uint32_t> hardwareEncoders(const std::vector<platform::VideoEncoder> &list)
{
    QSet<std::uint32_t> codecs;
    for (const auto &encoder : list) {
        if (encoder.isHardwareAccelerated.value_or(false))
            codecs.insert(encoder.codecType);
    }
    return codecs;
}

QString describe(platform::AuthorizationStatus status)
{
    switch (status) {
    case platform::AuthorizationStatus::NotDetermined:
        return Text::tr("Not requested yet");
    case platform::AuthorizationStatus::Restricted:
        return Text::tr("Restricted");
    case platform::AuthorizationStatus::Denied:
        return Text::tr("Denied");
    case platform::AuthorizationStatus::Authorized:
        return Text::tr("Allowed");
    }
    return Text::tr("Unknown");
}

QList<std::pair<QString, QString>> ipv4Addresses(const platform::Machine &machine)
{
    return ipv4Addresses(machine.network().interfaces());
}

QList<std::pair<QString, QString>> ipv4Addresses(const std::vector<platform::InterfaceEntry> &interfaces)
{
    QList<std::pair<QString, QString>> addresses;
    for (const auto &entry : interfaces) {
        if (entry.family == platform::AddressFamily::IPv4 && entry.address && entry.up && !entry.loopback)
            addresses.emplace_back(QString::fromStdString(entry.name),
                                   QString::fromStdString(*entry.address));
    }
    return addresses;
}

std::uint32_t fourCC(std::string_view text)
{
    std::uint32_t code = 0;
    for (const char c : text)
        code = code << 8 | static_cast<unsigned char>(c);
    return code;
}

std::optional<VolumeCapacity> volumeCapacity(const platform::Machine &machine)
{
    const auto volume = machine.volumes().startupVolume();
    return volume ? std::optional(volumeCapacity(*volume)) : std::nullopt;
}

VolumeCapacity volumeCapacity(const platform::StartupVolume &volume)
{
    // Purgeable space counts as free, as the system shows it, unless the figure is missing or cannot be true.
    const auto important = volume.availableForImportantUsage.value_or(0);
    const bool plausible = important > 0 && important <= volume.total;
    return {.name = QString::fromStdString(volume.name),
            .total = volume.total,
            .available = plausible ? important : volume.available.value_or(0)};
}

DeviceSummary summary(const platform::Machine &machine, const language::Formats &formats)
{
    using language::ByteCountStyle;
    const auto hostName = machine.system().hostName();
    const auto volume = volumeCapacity(machine);
    return {
        .deviceName = hostName ? QString::fromStdString(*hostName) : u"Mac"_s,
        .modelIdentifier = sysctlString(machine, "hw.model").value_or(missing()),
        .chip = chipName(machine),
        .memory = formats.byteCount(machine.system().physicalMemory(), ByteCountStyle::Memory),
        .storage = volume ? formats.byteCount(volume->total, ByteCountStyle::File) : missing(),
        .osVersion = osVersionDescription(machine),
        .isAppleSilicon = isAppleSilicon(machine),
        .hasBattery = hasBattery(machine),
    };
}

} // namespace quillmark::inspection::DeviceProbe
