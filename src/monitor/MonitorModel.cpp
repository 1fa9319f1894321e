// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/MonitorModel.h"

#include <cmath>

namespace quillmark::monitor {

namespace {

MonitorModel::Point pointOf(const MonitorSample &sample)
{
    return {.date = sample.date,
            .cpu = sample.cpuUsage,
            .memory = sample.memoryTotal < 1
                          ? 0
                          : static_cast<double>(sample.memoryUsed) / static_cast<double>(sample.memoryTotal),
            .pressure = sample.memoryPressure,
            .networkIn = sample.networkInPerSecond,
            .networkOut = sample.networkOutPerSecond};
}

/// A quiet afternoon: smooth curves, the same each time.
MonitorModel makeSample()
{
    constexpr int count = 120;
    constexpr std::int64_t gigabyte = std::int64_t{1} << 30;
    std::vector<MonitorSample> samples;
    for (int second = 0; second < count; ++second) {
        MonitorSample sample;
        sample.date = Date(std::chrono::sys_days(std::chrono::year(2026) / 3 / 1)) + std::chrono::hours(9) +
                      std::chrono::seconds(second);
        const auto wave = [second](double period) { return std::sin(second / period); };
        sample.cpuUsage = 0.24 + 0.08 * wave(9) + 0.05 * wave(3.1);
        for (int core = 0; core < 8; ++core)
            sample.perCoreUsage.push_back(sample.cpuUsage * (1.6 - 0.15 * core));
        sample.memoryTotal = 16 * gigabyte;
        sample.memoryUsed = 10 * gigabyte + static_cast<std::int64_t>(0.1 * wave(17) * gigabyte);
        sample.memoryPressure = 0.24 + 0.01 * wave(11);
        sample.swapUsed = gigabyte / 2;
        sample.batteryLevel = 0.78;
        sample.isCharging = true;
        sample.networkInPerSecond = 1.24e6 * (1 + 0.6 * wave(5));
        sample.networkOutPerSecond = 1.86e5 * (1 + 0.4 * wave(7));
        samples.push_back(std::move(sample));
    }
    return MonitorModel(samples, samples.back());
}

} // namespace

MonitorModel::MonitorModel(std::span<const MonitorSample> samples, const std::optional<MonitorSample> &latest)
{
    points.reserve(samples.size());
    for (const MonitorSample &sample : samples)
        points.push_back(pointOf(sample));
    if (!latest)
        return;
    perCore = latest->perCoreUsage;
    memoryUsed = latest->memoryUsed;
    memoryTotal = latest->memoryTotal;
    pressure = latest->memoryPressure;
    swapUsed = latest->swapUsed;
    thermal = latest->thermalState;
    battery = latest->batteryLevel;
    charging = latest->isCharging;
    networkIn = latest->networkInPerSecond;
    networkOut = latest->networkOutPerSecond;
}

const MonitorModel &MonitorModel::sample()
{
    static const MonitorModel model = makeSample();
    return model;
}

} // namespace quillmark::monitor
