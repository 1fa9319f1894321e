// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/Formats.h"

#include <QString>

#include <cstdint>

namespace quillmark::monitor {

/// "23%"
QString percentText(double share);

/// "1.24 MB/s", "186 KB/s", "0 KB/s": three significant digits, powers of 1000.
QString rateText(double bytesPerSecond, const language::Formats &formats);

/// "2.5 MB/s", "500 KB/s": a label of the axis of a chart, as short as it can be without loss. For the tops
/// of monitor::axisTop() and their halves.
QString axisText(double bytesPerSecond, const language::Formats &formats);

/// "18.96 GB"
QString memoryText(std::int64_t bytes, const language::Formats &formats);

/// "2.25 GB", "None"
QString swapText(std::int64_t bytes, const language::Formats &formats);

/// "Battery · charging", "Battery"
QString batteryTitle(bool isCharging);

} // namespace quillmark::monitor
