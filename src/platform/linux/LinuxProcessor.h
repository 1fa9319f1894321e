// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/Files.h"
#include "platform/linux/ProcessorFiles.h"

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quillmark::platform {

/// The processors that are switched on.
struct ProcessorLayout
{
    std::int32_t logical = 0;
    /// Physical cores by performance, the fastest first; one entry when all are alike, empty when the kernel
    /// does not tell which processors share a core.
    std::vector<std::int32_t> coresByLevel;
};

/// The facts of the processor that several subjects share. May be asked from any thread.
class LinuxProcessor
{
public:
    explicit LinuxProcessor(const Files &files);

    /// Read once: it does not change while the machine runs. Where /proc/cpuinfo does not tell the
    /// architecture, it is this machine's.
    const CpuInfo &info() const;

    /// None when the kernel does not say which processors are on. Kept until that changes.
    std::optional<ProcessorLayout> layout() const;

    /// The highest frequency of any core, in Hz.
    std::optional<std::int64_t> maximumFrequency() const;

private:
    std::vector<std::int32_t> coresByLevel(const std::vector<std::int32_t> &online) const;
    std::optional<std::vector<std::int32_t>>
    firstProcessorOfCores(const std::vector<std::int32_t> &online) const;
    std::vector<std::int32_t> hybridLevels(const std::vector<std::int32_t> &cores) const;
    std::vector<std::int32_t> capacityLevels(const std::vector<std::int32_t> &cores) const;

    Files m_files;
    mutable std::once_flag m_infoRead;
    mutable CpuInfo m_info;
    mutable std::mutex m_layoutMutex;
    mutable std::string m_layoutOnline; ///< the list of processors that m_layout holds for
    mutable ProcessorLayout m_layout;
};

/// The machine word of uname(2): "x86_64", "aarch64", …
std::string machineWord();

} // namespace quillmark::platform
