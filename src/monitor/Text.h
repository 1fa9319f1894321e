// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/texts.h"

namespace quillmark::monitor {

/// The words of the live monitor in the interface language of the moment.
class Text
{
    QUILLMARK_TEXTS(Monitor)
};

} // namespace quillmark::monitor
