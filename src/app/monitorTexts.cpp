// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/monitorTexts.h"

#include "app/painting.h"
#include "inspection/CapabilityModel.h"
#include "language/texts.h"
#include "monitor/texts.h"

#include <algorithm>
#include <cmath>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using monitor::Concern;
using monitor::MonitorModel;

namespace {

class Text
{
    QUILLMARK_TEXTS(MonitorWords)
};

long percent(double share)
{
    return std::lround(share * 100);
}

QString arrowed(QChar arrow, double rate, const language::Formats &formats)
{
    return arrow + u' ' + isolated(monitor::rateText(rate, formats));
}

QString verdictWord(monitor::PressureVerdict verdict)
{
    switch (verdict) {
    case monitor::PressureVerdict::Normal:
        //: of the memory pressure
        return Text::tr("Normal", "pressure");
    case monitor::PressureVerdict::Elevated:
        return Text::tr("Elevated", "pressure");
    case monitor::PressureVerdict::Critical:
        break;
    }
    return Text::tr("Critical", "pressure");
}

double memoryShare(const MonitorModel &model)
{
    return model.points.empty() ? 0 : model.points.back().memory;
}

} // namespace

design::StatusStyle styleOf(Concern concern)
{
    using inspection::CapabilityStatus;
    switch (concern) {
    case Concern::None:
        return design::statusStyle(CapabilityStatus::Supported);
    case Concern::Note:
        return design::statusStyle(CapabilityStatus::Info);
    case Concern::Warning:
        return design::statusStyle(CapabilityStatus::Warning);
    case Concern::Alarm:
        break;
    }
    return design::statusStyle(CapabilityStatus::Unsupported);
}

QString thermalNote(monitor::ThermalState state)
{
    switch (state) {
    case monitor::ThermalState::Nominal:
        return Text::tr("No limits on performance");
    case monitor::ThermalState::Fair:
        return Text::tr("Slightly warm, no limits");
    case monitor::ThermalState::Serious:
        return Text::tr("Performance is reduced");
    case monitor::ThermalState::Critical:
        return Text::tr("Performance is strongly reduced");
    }
    return {};
}

QString processorDescription(const MonitorModel &model)
{
    if (model.points.empty())
        return {};
    const auto [lowest, highest] = std::ranges::minmax(model.points, {}, &MonitorModel::Point::cpu);
    return Text::tr("%1 percent, between %2 and %3 percent in the last 2 minutes")
        .arg(percent(model.points.back().cpu))
        .arg(percent(lowest.cpu))
        .arg(percent(highest.cpu));
}

QString coresDescription(const MonitorModel &model)
{
    if (model.perCore.empty())
        return {};
    return Text::tr("%n core(s), the busiest at %1 percent", nullptr, static_cast<int>(model.perCore.size()))
        .arg(percent(std::ranges::max(model.perCore)));
}

QString memoryDescription(const MonitorModel &model, const language::Formats &formats)
{
    if (model.points.empty())
        return {};
    return Text::tr("%1 of %2 used, %3 percent. Pressure %4 percent, %5")
        .arg(monitor::memoryText(model.memoryUsed, formats), monitor::memoryText(model.memoryTotal, formats))
        .arg(percent(memoryShare(model)))
        .arg(percent(model.pressure))
        .arg(verdictWord(monitor::pressureVerdict(model.pressure)));
}

QString networkDescription(const MonitorModel &model, const language::Formats &formats)
{
    if (model.points.empty())
        return {};
    return Text::tr("In %1, out %2")
        .arg(monitor::rateText(model.networkIn, formats), monitor::rateText(model.networkOut, formats));
}

QString MonitorRow::line() const
{
    const auto figure = isolated(QString(value).replace(u'\n', u"  "_s));
    if (note.isEmpty())
        //: A row of the menu: what it is, and its figure
        return Text::tr("%1: %2").arg(label, figure);
    //: A row of the menu: what it is, its figure and a remark on it
    return Text::tr("%1: %2 (%3)").arg(label, figure, note);
}

QList<MonitorRow> monitorRows(const MonitorModel &model, const language::Formats &formats)
{
    using Kind = MonitorRow::Kind;
    const double processor = model.points.empty() ? 0 : model.points.back().cpu;
    const auto used = monitor::memoryText(model.memoryUsed, formats);
    const auto total = monitor::memoryText(model.memoryTotal, formats);
    const auto verdict = monitor::pressureVerdict(model.pressure);
    QList<MonitorRow> rows = {
        {Kind::Processor, u"cpu"_s, Text::tr("Processor"), {}, monitor::percentText(processor), {}},
        {Kind::Memory, u"memorychip"_s, Text::tr("Memory"),
         //: of memory: "18.96 GB of 48 GB"
         Text::tr("%1 of %2").arg(isolated(used), isolated(total)), monitor::percentText(memoryShare(model)),
         memoryShare(model)},
        {Kind::Pressure, u"gauge.with.needle"_s, Text::tr("Pressure"), verdictWord(verdict),
         monitor::percentText(model.pressure), model.pressure, concernOf(verdict)},
        {Kind::Swap,
         u"arrow.up.arrow.down.square"_s,
         Text::tr("Swap"),
         {},
         monitor::swapText(model.swapUsed, formats),
         {}}};
    if (model.battery)
        rows += {Kind::Battery,
                 u"battery.100.bolt"_s,
                 monitor::batteryTitle(model.charging.value_or(false)),
                 {},
                 monitor::percentText(*model.battery),
                 model.battery};
    rows += {Kind::Thermal,
             u"thermometer.medium"_s,
             Text::tr("Thermal state"),
             {},
             title(model.thermal),
             {},
             concernOf(model.thermal)};
    rows += {Kind::Network,
             u"arrow.down.arrow.up"_s,
             Text::tr("Network"),
             {},
             arrowed(u'↓', model.networkIn, formats) + u'\n' + arrowed(u'↑', model.networkOut, formats),
             {}};
    return rows;
}

} // namespace quillmark::app
