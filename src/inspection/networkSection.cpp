// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection networkSection(const platform::Machine &, const language::Formats &,
                                 const std::optional<platform::NetworkPath> &)
{
    return {.title = Text::tr("Network"), .symbol = u"network"_s, .key = u"network"_s};
}

} // namespace quillmark::inspection::DeviceProbe
