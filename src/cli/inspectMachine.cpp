// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/inspectMachine.h"

#include "inspection/DeviceProbe.h"

namespace quillmark::cli {

reports::Report inspectMachine(const platform::Machine &machine, const language::Formats &formats)
{
    return {.date = QDateTime::currentDateTimeUtc(),
            .language = formats.language(),
            .summary = inspection::DeviceProbe::summary(machine, formats),
            .sections = inspection::DeviceProbe::sections(machine, formats, machine.network().currentPath())};
}

} // namespace quillmark::cli
