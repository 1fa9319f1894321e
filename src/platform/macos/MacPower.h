// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Power.h"

namespace quillmark::platform {

class MacPower final : public Power
{
public:
    std::optional<std::vector<PropertyMap>> powerSources() const override;
    PowerSettings settings() const override;
    std::optional<std::map<std::string, PropertyMap>> powerSupplies() const override { return std::nullopt; }
    std::optional<PropertyMap> powerReport() const override;
};

} // namespace quillmark::platform
