// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillmark::platform {

/// The version that the system gives to processes (NSProcessInfo.operatingSystemVersion; os-release).
struct OperatingSystem
{
    std::string name; ///< "macOS", "Debian GNU/Linux"
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t patch = 0;

    bool operator==(const OperatingSystem &) const = default;
};

/// What a system that is not a Mac calls itself and its parts. An absent word means that the Mac's own is
/// right.
struct SystemWords
{
    std::optional<std::string>
        operatingSystem; ///< the whole description: "Debian GNU/Linux 12 (bookworm), Linux 6.1.0"
    std::optional<std::string> processor;    ///< for a processor that does not name itself: "Arm processor"
    std::optional<std::string> architecture; ///< "AMD (x86_64)"

    bool operator==(const SystemWords &) const = default;
};

/// The instructions that this processor runs.
enum class InstructionSet { Arm64, X86_64, Other };

/// The facts that a Mac's process information service and host object give.
class SystemInformation
{
public:
    virtual ~SystemInformation() = default;

    virtual OperatingSystem operatingSystem() const = 0;
    virtual SystemWords words() const = 0;

    /// Absent on a Mac, where the kernel value "hw.optional.arm64" tells.
    virtual std::optional<InstructionSet> instructionSet() const = 0;

    /// The name that people see and may have chosen, e.g. "Ada’s MacBook Pro"; not the name in the DNS. None
    /// when unset.
    virtual std::optional<std::string> hostName() const = 0;

    /// Installed memory in bytes; 0 when the system does not tell.
    virtual std::int64_t physicalMemory() const = 0;

    /// Seconds since the machine started, time asleep not counted.
    virtual std::optional<double> uptime() const = 0;

    /// NSProcessInfo.thermalState: 0 nominal, 1 fair, 2 serious, 3 critical; a newer system may know more. A
    /// machine that cannot tell is nominal.
    virtual std::int32_t thermalState() const = 0;
};

} // namespace quillmark::platform
