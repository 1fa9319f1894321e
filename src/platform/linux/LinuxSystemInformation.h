// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemInformation.h"
#include "platform/linux/Files.h"
#include "platform/linux/LinuxProcessor.h"

#include <map>
#include <mutex>
#include <string>

namespace quillmark::platform {

class LinuxSystemInformation final : public SystemInformation
{
public:
    /// The processor must live longer.
    LinuxSystemInformation(const Files &files, const LinuxProcessor &processor);

    OperatingSystem operatingSystem() const override;
    SystemWords words() const override;
    std::optional<InstructionSet> instructionSet() const override;
    std::optional<std::string> hostName() const override;
    std::int64_t physicalMemory() const override;
    std::optional<double> uptime() const override;
    std::int32_t thermalState() const override;

private:
    /// What every section asks about the system, read once: a system that has been upgraded is the new one
    /// only after it was started anew.
    struct Facts
    {
        OperatingSystem operatingSystem;
        SystemWords words;
        std::int64_t physicalMemory = 0;
    };

    const Facts &facts() const;
    std::map<std::string, std::string, std::less<>> osRelease() const;
    std::string architectureWord() const;
    std::string processorWord() const;

    Files m_files;
    const LinuxProcessor &m_processor;
    mutable std::once_flag m_factsRead;
    mutable Facts m_facts;
};

} // namespace quillmark::platform
