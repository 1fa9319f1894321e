// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryJudgement.h"
#include "fuzzing.h"
#include "inspection/DeviceProbe.h"
#include "monitor/SystemSampler.h"
#include "platform/recorded/RecordedMachine.h"
#include "platform/recorded/recordMachine.h"

#include <cmath>

namespace quillmark::fuzzing {

inline bool isShare(double value)
{
    return value >= 0 && value <= 1;
}

/// Everything that is read out of a machine, with what holds of it for every machine. What is recorded of one
/// can be read again, and is then recorded alike.
inline void inspectAll(const platform::Machine &machine)
{
    using namespace inspection::DeviceProbe;
    const language::Formats formats(QStringLiteral("en"));
    summary(machine, formats);
    QSet<std::pair<QString, QString>> keys;
    for (const auto &section : sections(machine, formats, machine.network().currentPath())) {
        for (const auto &item : section.items) {
            require(item.key.has_value() && !item.label.isEmpty(), "every row has a key and a label");
            const auto key = std::pair(section.key.value_or(QString()), *item.key);
            require(!keys.contains(key), "a key stands once in its section");
            keys.insert(key);
        }
    }
    for (const auto &reading : battery::readBatteries(machine, isAppleSilicon(machine)))
        battery::judge(reading);

    monitor::SystemSampler sampler(machine);
    sampler.prime();
    for (int count = 0; count < 3; ++count) {
        const auto sample = sampler.sample();
        require(isShare(sample.cpuUsage), "the load is a share");
        for (const double load : sample.perCoreUsage)
            require(isShare(load), "a core's load is a share");
        require(isShare(sample.memoryPressure), "the memory's pressure is a share");
        require(sample.networkInPerSecond >= 0 && std::isfinite(sample.networkInPerSecond),
                "a rate is a number");
        require(sample.networkOutPerSecond >= 0 && std::isfinite(sample.networkOutPerSecond),
                "a rate is a number");
        require(!sample.batteryLevel || isShare(*sample.batteryLevel), "the battery's level is a share");
    }

    for (const auto names : {platform::RecordedNames::LeaveOut, platform::RecordedNames::Keep}) {
        const auto text = recordMachine(machine, names);
        const auto again = platform::parseRecording(text, "recording");
        require(again.has_value(), "a recording can be read");
        require(recordMachine(**again, names) == text, "a recording of a recording is the same");
    }
}

} // namespace quillmark::fuzzing
