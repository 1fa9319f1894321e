// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/KernelValues.h"
#include "platform/linux/Files.h"
#include "platform/linux/LinuxProcessor.h"

#include <mutex>

namespace quillmark::platform {

/// The names of macOS's values whose facts Linux tells too. Those that mean "this is a Mac" stay unanswered.
class LinuxKernelValues final : public KernelValues
{
public:
    /// The processor must live longer.
    LinuxKernelValues(const Files &files, const LinuxProcessor &processor);

    std::optional<Bytes> read(std::string_view name) const override;

private:
    const std::optional<Bytes> &model() const;
    std::optional<Bytes> cores(std::string_view name) const;
    std::optional<Bytes> feature(std::string_view name) const;
    std::optional<Bytes> swap() const;
    std::optional<Bytes> pressure() const;

    Files m_files;
    const LinuxProcessor &m_processor;
    mutable std::once_flag m_modelRead;
    mutable std::optional<Bytes> m_model;
};

} // namespace quillmark::platform
