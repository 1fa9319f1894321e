// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/MonitorSample.h"

#include <array>
#include <cstdio>
#include <utility>

namespace quillmark::monitor {

void appendSample(std::vector<MonitorSample> &history, MonitorSample sample)
{
    history.push_back(std::move(sample));
    if (history.size() > maximumSamples)
        history.erase(history.begin(), history.end() - static_cast<std::ptrdiff_t>(maximumSamples));
}

std::string isoText(Date date)
{
    using namespace std::chrono;
    const auto moment = floor<milliseconds>(date);
    const auto midnight = floor<days>(moment);
    const year_month_day day(midnight);
    const hh_mm_ss time(moment - midnight);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", int(day.year()),
                  unsigned(day.month()), unsigned(day.day()), int(time.hours().count()),
                  int(time.minutes().count()), int(time.seconds().count()), int(time.subseconds().count()));
    return text.data();
}

} // namespace quillmark::monitor
