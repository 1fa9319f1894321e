// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

class RecordedSecurity final : public Security
{
public:
    SecurityState read() const override { return {}; }
};

} // namespace

std::unique_ptr<Security> readSecurity(const Members &)
{
    return std::make_unique<RecordedSecurity>();
}

void write(json::Writer &, const Security &) {}

} // namespace quillmark::platform::recorded
