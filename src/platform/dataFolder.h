// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace quillmark::platform {

/// Where this system keeps what programs store for their user: the folder that the folder of the history
/// stands in. An absolute path; the folder need not exist. Each system's family of answers defines it.
std::filesystem::path dataFolder();

} // namespace quillmark::platform
