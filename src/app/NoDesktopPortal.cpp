// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/DesktopChoices.h"

namespace quillmark::app {

/// Where Qt passes on all there is.
std::unique_ptr<DesktopChoices> DesktopChoices::ofSystem()
{
    return std::make_unique<DesktopChoices>();
}

} // namespace quillmark::app
