// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection mediaSection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Media"), .symbol = u"film"_s, .key = u"media"_s};
}

} // namespace quillmark::inspection::DeviceProbe
