// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Output.h"

#include <QString>
#include <QtGlobal>

#include <expected>

namespace quillmark::cli {

/// The address of a function in a module of the program: code whose libraries take long to load, so that only
/// who needs it does. Loads the module on first use, from beside the program and from nowhere else; it stays
/// loaded until the program ends. `module` is the name of its file without the extension, "quillmark-pdf".
///
/// The caller casts the address to the type that the header of the function gives; program and modules are
/// built together.
std::expected<QFunctionPointer, Failure> resolve(const QString &module, const char *symbol);

} // namespace quillmark::cli
