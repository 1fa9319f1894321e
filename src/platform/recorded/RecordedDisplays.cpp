// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

namespace quillmark::platform::recorded {

namespace {

class RecordedDisplays final : public Displays
{
public:
    std::optional<std::vector<DisplayReading>> displays() const override { return std::nullopt; }
};

} // namespace

std::unique_ptr<Displays> readDisplays(const Members &)
{
    return std::make_unique<RecordedDisplays>();
}

void write(json::Writer &, const Displays &) {}

} // namespace quillmark::platform::recorded
