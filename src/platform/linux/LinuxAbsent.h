// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Registry.h"

namespace quillmark::platform {

class LinuxRegistry final : public Registry
{
public:
    std::vector<PropertyMap> services(std::string_view) const override { return {}; }
    bool isReadable() const override { return false; }
};

} // namespace quillmark::platform
