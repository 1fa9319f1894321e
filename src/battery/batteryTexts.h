// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Sentences about a battery in the interface language, for a window and a terminal alike.

namespace quillmark::battery {

/// "92 % of design capacity", by which the health is judged.
QString ofDesignCapacity(const QString &percent);
/// "macOS reports 94 %", the system's own figure beside it.
QString reportedBySystem(const QString &percent);
/// Why the two differ.
QString reportedNote();

/// "This Mac has no battery"
QString noBattery(bool onMac);
/// Why that is fine.
QString noBatteryNote(bool onMac);

} // namespace quillmark::battery
