// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Counters.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

class LinuxCounters final : public Counters
{
public:
    explicit LinuxCounters(const Files &files);

    std::int64_t pageSize() const override;

    /// It keeps the files of the counters open, and may live longer than these counters.
    std::unique_ptr<CounterReader> reader() const override;

private:
    Files m_files;
};

} // namespace quillmark::platform
