// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/AppContext.h"

#include "inspection/DeviceProbe.h"

namespace quillmark::app {

bool isMac(const AppContext &context)
{
    return inspection::DeviceProbe::isMac(context.machine);
}

} // namespace quillmark::app
