// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection storageSection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Storage"), .symbol = u"internaldrive"_s, .key = u"storage"_s};
}

} // namespace quillmark::inspection::DeviceProbe
