// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Power.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

/// The supplies in /sys/class/power_supply that power the machine itself; a mouse's battery is none of them.
/// Power sources come in the order of their names, batteries before UPSs.
class LinuxPower final : public Power
{
public:
    explicit LinuxPower(const Files &files);

    std::optional<std::vector<PropertyMap>> powerSources() const override;
    PowerSettings settings() const override;
    std::optional<std::map<std::string, PropertyMap>> powerSupplies() const override;
    std::optional<PropertyMap> powerReport() const override { return std::nullopt; }

private:
    Files m_files;
};

} // namespace quillmark::platform
