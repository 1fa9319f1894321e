// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

QList<CapabilitySection> sections(const platform::Machine &machine, const language::Formats &formats,
                                  [[maybe_unused]] const std::optional<platform::NetworkPath> &networkPath)
{
    return {
        systemSection(machine, formats),
        processorSection(machine, formats),
        graphicsSection(machine, formats),
    };
}

QStringList sectionKeys()
{
    return {
        u"system"_s,
        u"processor"_s,
        u"graphics"_s,
    };
}

} // namespace quillmark::inspection::DeviceProbe
