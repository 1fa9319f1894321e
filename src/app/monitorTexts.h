// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"
#include "language/Formats.h"
#include "monitor/MonitorModel.h"
#include "monitor/verdicts.h"

#include <QList>
#include <QString>

#include <optional>

// What the window says of live figures.

namespace quillmark::app {

/// The mark and colours of a verdict.
design::StatusStyle styleOf(monitor::Concern concern);

/// "No limits on performance"; empty for a state that is not known.
QString thermalNote(monitor::ThermalState state);

// What a chart says to those who do not see it.
/// "23 percent, between 9 and 57 percent in the last 2 minutes"; empty without a sample.
QString processorDescription(const monitor::MonitorModel &model);
/// "14 cores, the busiest at 57 percent"; empty when the load of cores is not known.
QString coresDescription(const monitor::MonitorModel &model);
QString memoryDescription(const monitor::MonitorModel &model, const language::Formats &formats);
QString networkDescription(const monitor::MonitorModel &model, const language::Formats &formats);

/// One figure of the monitor in the menu bar.
struct MonitorRow
{
    enum class Kind { Processor, Memory, Pressure, Swap, Battery, Thermal, Network };

    Kind kind;
    QString symbol;
    QString label;
    QString note;                                 ///< below the label; mostly empty
    QString value;                                ///< "23%"; two lines for the network
    std::optional<double> share;                  ///< 0…1, where a bar shows it
    std::optional<monitor::Concern> concern = {}; ///< where the figure is one that is judged

    /// "Memory: 61% (29.4 GB of 48 GB)": the whole row as one line.
    QString line() const;

    bool operator==(const MonitorRow &) const = default;
};

/// In the order in which they are shown; no battery without one.
QList<MonitorRow> monitorRows(const monitor::MonitorModel &model, const language::Formats &formats);

} // namespace quillmark::app
