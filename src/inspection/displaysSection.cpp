// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection displaysSection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Displays"), .symbol = u"display"_s, .key = u"displays"_s};
}

} // namespace quillmark::inspection::DeviceProbe
