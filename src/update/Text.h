// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/texts.h"

namespace quillmark::update {

/// What is said about newer versions, in the interface language of the moment.
class Text
{
    QUILLMARK_TEXTS(Update)
};

} // namespace quillmark::update
