// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/TerminalChart.h"
#include "language/Formats.h"
#include "monitor/MonitorModel.h"
#include "monitor/chart.h"

#include <QString>

#include <optional>
#include <span>
#include <vector>

namespace quillmark::cli {

/// The live monitor as it stands on a terminal: processor, cores, memory and network, each with the last two
/// minutes as far as there is room, heat, swap and battery.
class MonitorView
{
public:
    /// `deviceName` may hold anything.
    MonitorView(const language::Formats &formats, const QString &deviceName);

    void add(monitor::MonitorSample sample);

    /// Fills the picture that the screen has begun, in any size.
    void draw(Screen &screen) const;

private:
    /// A few words of one colour.
    struct Words
    {
        QString text;
        Role role = Role::Text;
    };
    /// A filled curve, and the figures at its top and base.
    struct Curve
    {
        double monitor::MonitorModel::Point::*value;
        double top = 1;
        QString topLabel;
        Role role = Role::Text;
    };

    void drawHeader(Screen &screen) const;
    void drawOneColumn(Screen &screen, Area body) const;
    void drawTwoColumns(Screen &screen, Area body) const;
    void drawProcessor(Screen &screen, Area area) const;
    void drawCores(Screen &screen, Area area) const;
    void drawCoreBars(Screen &screen, Area area, int barColumns) const;
    void drawCoreColumns(Screen &screen, Area area) const;
    void drawMemory(Screen &screen, Area area) const;
    void drawNetwork(Screen &screen, Area area) const;
    void drawCharts(Screen &screen, Area area, std::span<const Curve> curves) const;

    /// Rows of tiles, each tile as wide as its words.
    std::vector<std::vector<std::vector<Words>>> tiles(int width) const;

    const language::Formats &m_formats;
    QString m_deviceName;
    std::vector<monitor::MonitorSample> m_samples;
    monitor::MonitorModel m_model;
    monitor::NetworkAxis m_networkAxis;
    double m_networkTop = 0;
};

} // namespace quillmark::cli
