// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection securitySection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Security"), .symbol = u"lock.shield"_s, .key = u"security"_s};
}

} // namespace quillmark::inspection::DeviceProbe
