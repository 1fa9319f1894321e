// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "monitor/MonitorSample.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quillmark::monitor {

/// What the charts and headline figures of the live monitor show.
struct MonitorModel
{
    /// One sample as a chart draws it.
    struct Point
    {
        Date date;
        double cpu = 0;        ///< 0…1
        double memory = 0;     ///< used of total, 0…1; 0 when the total is unknown
        double pressure = 0;   ///< 0…1
        double networkIn = 0;  ///< bytes a second
        double networkOut = 0; ///< bytes a second

        bool operator==(const Point &) const = default;
    };

    MonitorModel() = default;
    /// `samples` oldest first. Without a latest one the figures are those of a model that knows nothing.
    MonitorModel(std::span<const MonitorSample> samples, const std::optional<MonitorSample> &latest);

    /// A fixed one with two minutes of history, for previews and placeholders.
    static const MonitorModel &sample();

    std::vector<Point> points;    ///< oldest first
    std::vector<double> perCore;  ///< 0…1
    std::int64_t memoryUsed = 0;  ///< bytes
    std::int64_t memoryTotal = 0; ///< bytes
    double pressure = 0;          ///< 0…1
    std::int64_t swapUsed = 0;    ///< bytes
    ThermalState thermal = ThermalState::Nominal;
    std::optional<double> battery; ///< 0…1; none without one
    std::optional<bool> charging;  ///< none without a battery
    double networkIn = 0;          ///< bytes a second
    double networkOut = 0;         ///< bytes a second
};

} // namespace quillmark::monitor
