// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"
#include "platform/Machine.h"
#include "reports/Report.h"

namespace quillmark::cli {

/// One inspection of the machine, now.
reports::Report inspectMachine(const platform::Machine &machine, const language::Formats &formats);

} // namespace quillmark::cli
