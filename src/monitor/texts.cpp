// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/texts.h"

#include "monitor/Text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmark::monitor {

namespace {

QString rateInUnit(const QString &number, int unit)
{
    switch (unit) {
    case 0:
        return Text::tr("%1 KB/s").arg(number);
    case 1:
        return Text::tr("%1 MB/s").arg(number);
    case 2:
        return Text::tr("%1 GB/s").arg(number);
    default:
        return Text::tr("%1 TB/s").arg(number);
    }
}

} // namespace

QString rateText(double bytesPerSecond, const language::Formats &formats)
{
    // From these on, a number rounded to three digits would be a whole one of the next unit, or have one
    // digit more before its point.
    constexpr double nextUnitFrom = 999.5;
    constexpr std::array<std::pair<double, int>, 4> digitsFrom = {
        {{99.95, 0}, {9.995, 1}, {0.9995, 2}, {0, 3}}};
    constexpr int lastUnit = 3;
    constexpr double leastShown = 0.0005;
    double number = bytesPerSecond / 1000;
    int unit = 0;
    for (; number >= nextUnitFrom && unit < lastUnit; ++unit)
        number /= 1000;
    if (number < leastShown)
        return rateInUnit(formats.number(0), unit);
    const auto digits =
        std::ranges::find_if(digitsFrom, [=](const auto &entry) { return number >= entry.first; });
    return rateInUnit(formats.number(number, digits->second), unit);
}

QString axisText(double bytesPerSecond, const language::Formats &formats)
{
    constexpr int lastUnit = 3;
    double number = bytesPerSecond / 1000;
    int unit = 0;
    for (; number >= 1000 && unit < lastUnit; ++unit)
        number /= 1000;
    return rateInUnit(formats.number(number, number == std::floor(number) ? 0 : 1), unit);
}

QString percentText(double share)
{
    return Text::tr("%1%").arg(language::currentFormats().number(std::round(share * 100)));
}

QString memoryText(std::int64_t bytes, const language::Formats &formats)
{
    return formats.byteCount(bytes, language::ByteCountStyle::Memory);
}

QString swapText(std::int64_t bytes, const language::Formats &formats)
{
    //: Swap space that is in use.
    return bytes == 0 ? Text::tr("None") : memoryText(bytes, formats);
}

QString batteryTitle(bool isCharging)
{
    return isCharging ? Text::tr("Battery · charging") : Text::tr("Battery");
}

} // namespace quillmark::monitor
