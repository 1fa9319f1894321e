// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

QList<CapabilitySection> sections(const platform::Machine &machine, const language::Formats &formats,
                                  const std::optional<platform::NetworkPath> &networkPath)
{
    return {
        systemSection(machine, formats),      processorSection(machine, formats),
        graphicsSection(machine, formats),    intelligenceSection(machine, formats),
        displaysSection(machine, formats),    mediaSection(machine, formats),
        cameraAudioSection(machine, formats), storageSection(machine, formats),
        powerSection(machine, formats),       networkSection(machine, formats, networkPath),
        securitySection(machine, formats),
    };
}

QStringList sectionKeys()
{
    return {
        u"system"_s,      u"processor"_s, u"graphics"_s, u"intelligence"_s, u"displays"_s, u"media"_s,
        u"cameraAudio"_s, u"storage"_s,   u"power"_s,    u"network"_s,      u"security"_s,
    };
}

} // namespace quillmark::inspection::DeviceProbe
