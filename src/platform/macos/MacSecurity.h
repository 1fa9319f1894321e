// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Security.h"

namespace quillmark::platform {

class MacSecurity final : public Security
{
public:
    SecurityState read() const override;
};

} // namespace quillmark::platform
