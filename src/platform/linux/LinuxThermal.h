// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/Files.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillmark::platform {

/// The machine's thermal zones that have limits. The limits are read when a zone appears, the temperatures at
/// each question.
class ThermalZones
{
public:
    explicit ThermalZones(const Files &files);

    /// SystemInformation::thermalState(): the worst that any zone has reached. 3: the limit at which the
    /// machine protects itself by switching off; 2: the limit from which the kernel slows the machine down;
    /// 1: that from which fans run.
    std::int32_t state();

private:
    struct Limit
    {
        std::int64_t temperature; ///< thousandths of a degree Celsius
        std::int32_t state;       ///< from there on
    };
    struct Zone
    {
        std::string folder;
        std::vector<Limit> limits;
        HeldFile temperature;
    };

    void findZones();
    std::vector<Limit> limitsOf(const std::string &folder) const;

    Files m_files;
    HeldFolder m_folder;
    std::vector<Zone> m_zones;
};

} // namespace quillmark::platform
