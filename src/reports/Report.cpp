// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/Report.h"

namespace quillmark::reports {

QString applicationVersion()
{
    return QStringLiteral(QUILLMARK_VERSION);
}

QList<inspection::CapabilitySection> filteredSections(const Report &report)
{
    auto sections = report.sections;
    if (!report.filter)
        return sections;
    for (auto &section : sections)
        section.items.removeIf([&](const auto &item) { return !report.filter(section, item); });
    return sections;
}

} // namespace quillmark::reports
