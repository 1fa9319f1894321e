// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/DeviceProbe.h"
#include "reports/Report.h"
#include "support/Recordings.h"

#include <QTimeZone>

namespace quillmark::support {

using namespace Qt::StringLiterals;

/// An inspection of the machine in November, in a time zone two hours ahead of UTC.
inline reports::Report reportOf(const platform::Machine &machine, const QString &language = u"en"_s)
{
    const language::Formats formats(language);
    return {.date = QDateTime({2026, 11, 22}, {22, 35, 32}, QTimeZone(7200)),
            .language = language,
            .summary = inspection::DeviceProbe::summary(machine, formats),
            .sections = inspection::DeviceProbe::sections(machine, formats, machine.network().currentPath())};
}

/// A section of so many rows, of every status in turn.
inline inspection::CapabilitySection manyRows(int rows)
{
    inspection::CapabilitySection section{.title = u"Many rows"_s, .symbol = u"network"_s, .key = u"many"_s};
    for (int i = 0; i < rows; ++i)
        section.items += {.label = u"Label %1"_s.arg(i + 1),
                          .value = u"Value %1"_s.arg(i + 1),
                          .status = inspection::allStatuses[static_cast<std::size_t>(i) % 4]};
    return section;
}

} // namespace quillmark::support
