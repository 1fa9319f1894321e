// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection powerSection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Power"), .symbol = u"bolt"_s, .key = u"power"_s};
}

} // namespace quillmark::inspection::DeviceProbe
