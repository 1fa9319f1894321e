// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/ScanSnapshot.h"

namespace quillmark::history {

using inspection::CapabilityItem;
using inspection::CapabilitySection;

namespace {

QDateTime thisSecond()
{
    return QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
}

} // namespace

ScanSnapshot takeSnapshot(const inspection::DeviceSummary &summary, const QList<CapabilitySection> &sections,
                          const QString &language)
{
    ScanSnapshot snapshot{.id = inspection::freshId(),
                          .date = thisSecond(),
                          .deviceName = summary.deviceName,
                          .modelIdentifier = summary.modelIdentifier,
                          .chip = summary.chip,
                          .osVersion = summary.osVersion,
                          .sections = {},
                          .language = language};
    snapshot.sections.reserve(sections.size());
    for (const auto &section : sections) {
        QList<ScanSnapshot::Item> items;
        items.reserve(section.items.size());
        for (const auto &item : section.items)
            items.append({item.label, item.value, item.status, item.key, item.isVolatile});
        snapshot.sections.append({section.title, section.symbol, std::move(items), section.key});
    }
    return snapshot;
}

inspection::StatusCounts countsOf(const ScanSnapshot &snapshot)
{
    inspection::StatusCounts counts;
    for (const auto &section : snapshot.sections) {
        for (const auto &item : section.items)
            counts.add(item.status);
    }
    return counts;
}

QList<CapabilitySection> inspectedSections(const ScanSnapshot &snapshot)
{
    QList<CapabilitySection> sections;
    sections.reserve(snapshot.sections.size());
    for (const auto &section : snapshot.sections) {
        QList<CapabilityItem> items;
        items.reserve(section.items.size());
        for (const auto &item : section.items)
            items.append({.label = item.label,
                          .value = item.value,
                          .status = item.status,
                          .key = item.key,
                          .isVolatile = item.isVolatile});
        sections.append({.title = section.title,
                         .symbol = section.symbol,
                         .items = std::move(items),
                         .key = section.key});
    }
    return sections;
}

} // namespace quillmark::history
