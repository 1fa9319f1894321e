// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

#include <string>

namespace quillmark::platform {

/// Names that people gave, and what else tells one person's machine from another's.
enum class RecordedNames { LeaveOut, Keep };

/// The machine's raw answers as a recording. Serial numbers, hardware addresses and identifiers are never in
/// it; the computer's name, the names of volumes and of displays that have no size, and IP addresses only
/// when they are to be kept.
std::string recordMachine(const Machine &machine, RecordedNames names);

} // namespace quillmark::platform
