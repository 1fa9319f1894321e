// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/texts.h"

namespace quillmark::battery {

/// The words about a battery in the interface language of the moment.
class Text
{
    QUILLMARK_TEXTS(Battery)
};

} // namespace quillmark::battery
