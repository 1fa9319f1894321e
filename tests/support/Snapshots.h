// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/ScanSnapshot.h"
#include "inspection/DeviceProbe.h"
#include "support/Recordings.h"

#include <algorithm>
#include <random>

namespace quillmark::support {

struct Inspection
{
    inspection::DeviceSummary summary;
    QList<inspection::CapabilitySection> sections;
};

inline Inspection inspectionOf(const platform::Machine &machine)
{
    const language::Formats formats(QStringLiteral("en"));
    return {inspection::DeviceProbe::summary(machine, formats),
            inspection::DeviceProbe::sections(machine, formats, machine.network().currentPath())};
}

/// One scan after the other, the newest first, as a laptop's history holds them: 90 rows in eleven sections,
/// a tenth of which have another value each time. 200 of them take 2.3 MB. The same at every call.
inline QList<history::ScanSnapshot> laptopHistory(int count)
{
    constexpr qsizetype rows = 90;
    auto inspection = inspectionOf(*machineFrom(recordingText(QStringLiteral("macbook-pro-m3-max"))));
    qsizetype surplus = -rows;
    for (const auto &section : inspection.sections)
        surplus += section.items.size();
    for (auto section = inspection.sections.rbegin(); section != inspection.sections.rend() && surplus > 0;
         ++section) {
        const auto removed = std::min(surplus, section->items.size() - 1);
        section->items.remove(section->items.size() - removed, removed);
        surplus -= removed;
    }

    QList<history::ScanSnapshot> snapshots;
    std::mt19937 random(20260301);
    for (int number = 0; number < count; ++number) {
        auto snapshot = history::takeSnapshot(inspection.summary, inspection.sections, QStringLiteral("en"));
        snapshot.date = QDateTime::fromSecsSinceEpoch(1772323200 + 86400 * number, Qt::UTC);
        for (auto &section : snapshot.sections) {
            for (auto &item : section.items) {
                if (random() % 10 == 0)
                    item.value += QStringLiteral(" · %1").arg(number);
            }
        }
        snapshots.prepend(snapshot);
    }
    return snapshots;
}

} // namespace quillmark::support
