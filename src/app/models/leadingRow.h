// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <optional>

// What the overview tells of a machine at a glance.

namespace quillmark::app {

/// The row that stands for its section.
struct LeadingRow
{
    QString label; ///< empty: the value explains itself
    QString value;

    bool operator==(const LeadingRow &) const = default;
};

/// None for a section without rows. `builtInDisplay` is the number of that display in its section, from 1;
/// absent: there is none.
std::optional<LeadingRow> leadingRow(const inspection::CapabilitySection &section,
                                     std::optional<int> builtInDisplay);

/// The illustration of a machine like this one: a portable, a desktop with its screen, a small box, a tower.
QString deviceSymbol(const inspection::DeviceSummary &summary);

} // namespace quillmark::app
