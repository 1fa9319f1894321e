// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/texts.h"

namespace quillmark::inspection {

/// The words of an inspection: Text::tr("Uptime") is the text in the interface language of the moment.
class Text
{
    QUILLMARK_TEXTS(Inspection)
};

} // namespace quillmark::inspection
