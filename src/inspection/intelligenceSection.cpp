// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection intelligenceSection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Artificial Intelligence"), .symbol = u"sparkles"_s, .key = u"intelligence"_s};
}

} // namespace quillmark::inspection::DeviceProbe
