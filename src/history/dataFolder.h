// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace quillmark::history {

/// Where this system keeps what programs store for their user: the folder that the folder of the history
/// stands in. It need not exist.
QString dataFolder();

} // namespace quillmark::history
