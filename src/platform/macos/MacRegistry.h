// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Registry.h"

namespace quillmark::platform {

class MacRegistry final : public Registry
{
public:
    std::vector<PropertyMap> services(std::string_view classOrPath) const override;
};

} // namespace quillmark::platform
