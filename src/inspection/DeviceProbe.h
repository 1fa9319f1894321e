// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"
#include "inspection/CapabilityModel.h"
#include "language/Formats.h"
#include "platform/Machine.h"

#include <QList>
#include <QSet>
#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

/// The probes of an inspection: each takes a machine and returns values, changes nothing and keeps nothing.
/// What cannot be read is absent, or shown by a fallback text; no probe fails.
///
/// A probe reads the machine on the calling thread, for as long as that takes.
namespace quillmark::inspection::DeviceProbe {

/// An internal battery among the power sources.
struct BatteryInfo
{
    double level = 0; ///< from 0 to 1, as the source tells
    bool isCharging = false;
    bool onAC = false;
    std::optional<QString> health; ///< the source's own word: "Good", "Check Battery"
    std::optional<std::int64_t> cycleCount;

    bool operator==(const BatteryInfo &) const = default;
};

/// The start-up volume. Sizes in bytes.
struct VolumeCapacity
{
    QString name;
    std::int64_t total = 0;
    std::int64_t available = 0;

    bool operator==(const VolumeCapacity &) const = default;
};

/// The headline.
DeviceSummary summary(const platform::Machine &machine, const language::Formats &formats);

/// Every section, in the order in which they are shown. `networkPath` is absent until one has been reported.
QList<CapabilitySection> sections(const platform::Machine &machine, const language::Formats &formats,
                                  const std::optional<platform::NetworkPath> &networkPath);

/// The keys of those sections, in the same order.
QStringList sectionKeys();

/// The sections as an inspection will fill them, with their titles in the interface language, without rows.
QList<CapabilitySection> emptySections();

CapabilitySection systemSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection processorSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection graphicsSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection intelligenceSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection displaysSection(const platform::Machine &machine, const language::Formats &formats);
/// The number, from 1, that the keys of its rows bear. None without one.
std::optional<int> builtInDisplay(const platform::Machine &machine);
CapabilitySection mediaSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection cameraAudioSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection storageSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection powerSection(const platform::Machine &machine, const language::Formats &formats);
CapabilitySection networkSection(const platform::Machine &machine, const language::Formats &formats,
                                 const std::optional<platform::NetworkPath> &networkPath);
CapabilitySection securitySection(const platform::Machine &machine, const language::Formats &formats);

/// A kernel value as text, up to its first zero byte.
std::optional<QString> sysctlString(const platform::Machine &machine, std::string_view name);
/// A kernel value of four or eight bytes as a number; none for any other size.
std::optional<std::int64_t> sysctlInt(const platform::Machine &machine, std::string_view name);
/// True when the kernel value reads and is 1. An unreadable flag counts as not set.
bool sysctlFlag(const platform::Machine &machine, std::string_view name);

QString chipName(const platform::Machine &machine);
/// "macOS 15.3.1 Sequoia (24D70)"
QString osVersionDescription(const platform::Machine &machine);
/// False on every other system, whose facts and words differ.
bool isMac(const platform::Machine &machine);
/// The rule by which everything decides whether this is an Apple-silicon Mac.
bool isAppleSilicon(const platform::Machine &machine);
bool isVirtualMachine(const platform::Machine &machine);
/// What rows about instructions go by. A Mac's kernel value decides it; another system says it itself.
platform::InstructionSet instructionSet(const platform::Machine &machine);

bool hasBattery(const platform::Machine &machine);
/// None on a machine without an internal battery.
std::optional<BatteryInfo> batteryInfo(const platform::Machine &machine);
std::optional<std::int64_t> batteryCycleCount(const platform::Machine &machine);
/// All that the machine tells of it.
std::optional<battery::BatteryReading> batteryReading(const platform::Machine &machine);

/// The n of the highest "Apple n" family that the device supports, from 1 to 12.
std::optional<int> highestAppleFamily(const platform::GraphicsDevice &device);

/// The codes of the codecs that are encoded in hardware. Empty when there is no list.
QSet<std::uint32_t> hardwareEncoders(const platform::Machine &machine);
QSet<std::uint32_t> hardwareEncoders(const std::vector<platform::VideoEncoder> &list);

/// The permission in the interface language: "Not requested yet", "Restricted", "Denied", "Allowed",
/// "Unknown".
QString describe(platform::AuthorizationStatus status);

/// Interface name and dotted address of every interface that is up, loopback left out, in the system's order.
QList<std::pair<QString, QString>> ipv4Addresses(const platform::Machine &machine);
/// The same of a list that has been read.
QList<std::pair<QString, QString>> ipv4Addresses(const std::vector<platform::InterfaceEntry> &interfaces);

/// The bytes of the text as one number, the first highest: 'hvc1' for "hvc1".
std::uint32_t fourCC(std::string_view text);

/// None when the volume cannot be read.
std::optional<VolumeCapacity> volumeCapacity(const platform::Machine &machine);
/// Of a start-up volume that has been read.
VolumeCapacity volumeCapacity(const platform::StartupVolume &volume);

} // namespace quillmark::inspection::DeviceProbe
