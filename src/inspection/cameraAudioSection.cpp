// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/Text.h"

namespace quillmark::inspection::DeviceProbe {

using namespace Qt::StringLiterals;

CapabilitySection cameraAudioSection(const platform::Machine &, const language::Formats &)
{
    return {.title = Text::tr("Camera & Audio"), .symbol = u"camera"_s, .key = u"cameraAudio"_s};
}

} // namespace quillmark::inspection::DeviceProbe
