// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Power.h"
#include "platform/linux/Files.h"

namespace quillmark::platform {

struct Supply;

/// The supplies in /sys/class/power_supply that power the machine itself; a mouse's battery is none of them.
/// Their files stay open from one question to the next.
class PowerSupplies
{
public:
    explicit PowerSupplies(const Files &files);

    /// As Power::powerSources(), in the order of their names, batteries before UPSs.
    std::vector<PropertyMap> powerSources();
    /// As Power::powerSupplies().
    std::map<std::string, PropertyMap> powerSupplies();

private:
    struct HeldSupply
    {
        std::string name; ///< of its folder: "BAT0"
        std::string type; ///< from a file of its own, where the properties lack it
        HeldFile properties;
    };

    /// They refer to the files, and so are good until the next question.
    std::vector<Supply> read();

    Files m_files;
    HeldFolder m_folder;
    std::vector<HeldSupply> m_supplies;
};

class LinuxPower final : public Power
{
public:
    explicit LinuxPower(const Files &files);

    std::optional<std::vector<PropertyMap>> powerSources() const override;
    PowerSettings settings() const override;
    std::optional<std::map<std::string, PropertyMap>> powerSupplies() const override;
    std::optional<PropertyMap> powerReport() const override { return std::nullopt; }

private:
    /// What was found; none when nothing was because there is no folder of supplies.
    template <typename Container>
    std::optional<Container> found(Container container) const;

    Files m_files;
};

} // namespace quillmark::platform
