// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Counters.h"

namespace quillmark::platform {

class MacCounters final : public Counters
{
public:
    std::int64_t pageSize() const override;
    std::unique_ptr<CounterReader> reader() const override;
};

} // namespace quillmark::platform
