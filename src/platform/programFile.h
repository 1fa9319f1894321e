// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace quillmark::platform {

/// The file of this very program, whatever name it was started by: an absolute path without links. Empty when
/// the system does not tell. Each system's family of answers defines it.
std::filesystem::path programFile();

} // namespace quillmark::platform
