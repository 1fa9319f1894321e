// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/RunApp.h"

#include <QString>

namespace quillmark::app {

/// What the module exports: see RunApp.
int run(const Launch &launch, QString &failure);

} // namespace quillmark::app
