// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/MonitorView.h"

#include "cli/TextWidth.h"
#include "language/texts.h"
#include "monitor/texts.h"
#include "monitor/verdicts.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace quillmark::cli {

using namespace Qt::StringLiterals;
using monitor::Concern;
using monitor::MonitorModel;

namespace {

class Text
{
    QUILLMARK_TEXTS(TerminalMonitor)
};

constexpr int margin = 1;
constexpr int gap = 3; // between things side by side
constexpr int twoColumnsFrom = 92;
constexpr int roomyFrom = 18;        // rows from which there are empty ones between parts
constexpr int leastPanelRows = 6;    // of all panels together, without any chart
constexpr int timeAxisFrom = 5;      // rows of a chart from which its time is labelled
constexpr int axisLabelFrom = 40;    // columns of a chart from which its top is labelled
constexpr int narrowestCoreBar = 15; // columns: number, bar, figure

int ceilDivided(int number, int by)
{
    return (number + by - 1) / by;
}

Role roleOf(Concern concern)
{
    switch (concern) {
    case Concern::None:
        return Role::Good;
    case Concern::Note:
        return Role::Note;
    case Concern::Warning:
        return Role::Warning;
    case Concern::Alarm:
        break;
    }
    return Role::Alarm;
}

/// The mark that stands before a verdict, so that its colour says nothing that is not there without.
QString markOf(Concern concern)
{
    switch (concern) {
    case Concern::None:
        return u"✓ "_s;
    case Concern::Note:
        return u"· "_s;
    case Concern::Warning:
        return u"! "_s;
    case Concern::Alarm:
        break;
    }
    return u"✗ "_s;
}

/// Writes the words one after the other, up to the column `end`; the column after them.
template <typename AllWords>
int putWords(Screen &screen, int row, int column, int end, const AllWords &all)
{
    for (const auto &[text, role] : all)
        column = screen.put(row, column, text, role, end - column);
    return column;
}

template <typename AllWords>
int widthOf(const AllWords &all)
{
    int width = 0;
    for (const auto &words : all)
        width += textWidth(words.text);
    return width;
}

} // namespace

MonitorView::MonitorView(const language::Formats &formats, const QString &deviceName)
    : m_formats(formats)
    , m_deviceName(printable(deviceName.normalized(QString::NormalizationForm_C)))
{}

void MonitorView::add(monitor::MonitorSample sample)
{
    appendSample(m_samples, std::move(sample));
    m_model = MonitorModel(m_samples, m_samples.back());
    double highest = 0;
    for (const auto &point : m_model.points)
        highest = std::max({highest, point.networkIn, point.networkOut});
    m_networkTop = m_networkAxis.update(highest);
}

void MonitorView::draw(Screen &screen) const
{
    drawHeader(screen);
    if (m_samples.empty()) {
        screen.put(2, margin, Text::tr("Collecting samples…"), Role::Quiet);
        return;
    }
    const int space = screen.rows() >= roomyFrom ? 1 : 0;
    Area body = {1 + space, margin, screen.columns() - 2 * margin, screen.rows() - 1 - space};
    const auto tileLines = tiles(body.width);
    const auto tileRows = static_cast<int>(tileLines.size());
    const bool hasTiles = body.height - tileRows >= leastPanelRows;
    body.height -= hasTiles ? tileRows + space : 0;
    if (body.width >= twoColumnsFrom)
        drawTwoColumns(screen, body);
    else
        drawOneColumn(screen, body);
    body.row += body.height + space;
    for (int row = 0; hasTiles && row < tileRows; ++row) {
        int column = body.column;
        for (const auto &tile : tileLines[static_cast<std::size_t>(row)])
            column = putWords(screen, body.row + row, column, body.column + body.width, tile) + gap;
    }
}

void MonitorView::drawHeader(Screen &screen) const
{
    const auto hint = Text::tr("q ends");
    const auto pace = Text::tr("Updated every second · last 2 minutes");
    const int right = screen.columns() - margin;
    const auto title = m_deviceName.isEmpty() ? Text::tr("Live monitor") : m_deviceName;
    int column = screen.put(0, margin, title, Role::Strong, screen.columns() - 2 * margin);
    for (const auto &text : {pace + u" · "_s + hint, hint}) {
        if (column + gap + textWidth(text) <= right) {
            screen.put(0, right - textWidth(text), text, Role::Quiet);
            break;
        }
    }
}

/// Rows are given to the charts one after the other, the most telling first, until none is left.
void MonitorView::drawOneColumn(Screen &screen, Area body) const
{
    enum Panel : std::uint8_t { Processor, Cores, Memory, Network, PanelCount };
    using Draw = void (MonitorView::*)(Screen &, Area) const;
    constexpr std::array<Draw, PanelCount> draws = {&MonitorView::drawProcessor, &MonitorView::drawCores,
                                                    &MonitorView::drawMemory, &MonitorView::drawNetwork};
    constexpr std::array turns = {Processor, Network, Memory, Network, Memory};
    const int space = body.height >= roomyFrom ? 1 : 0;
    const int barRows =
        ceilDivided(static_cast<int>(m_model.perCore.size()), std::max(body.width / narrowestCoreBar, 1));
    std::array<int, PanelCount> heights = {1, 1 + std::min(barRows, std::max(body.height / 4, 1)), 2, 1};
    int left = body.height - std::accumulate(heights.begin(), heights.end(), 0) - 3 * space;
    for (std::size_t turn = 0; left > 0; ++turn, --left)
        ++heights[turns[turn % turns.size()]];
    Area area = body;
    for (std::size_t panel = 0; panel < PanelCount; ++panel) {
        area.height = heights[panel];
        (this->*draws[panel])(screen, area);
        area.row += area.height + space;
    }
}

void MonitorView::drawTwoColumns(Screen &screen, Area body) const
{
    const int space = body.height >= roomyFrom ? 1 : 0;
    const int upper = (body.height - space) / 2;
    const int lower = body.height - space - upper;
    const int width = (body.width - gap) / 2;
    const int right = body.column + body.width - width;
    drawProcessor(screen, {body.row, body.column, width, upper});
    drawCores(screen, {body.row, right, width, upper});
    drawMemory(screen, {body.row + upper + space, body.column, width, lower});
    drawNetwork(screen, {body.row + upper + space, right, width, lower});
}

namespace {

/// A heading at the left, and at the right what it comes to; the figures give way where both do not fit.
template <typename AllWords>
void putTitle(Screen &screen, int row, int column, int width, const QString &heading, const AllWords &figures)
{
    const int from = std::max(column + width - widthOf(figures), column + textWidth(heading) + 1);
    screen.put(row, column, heading, Role::Strong, width);
    putWords(screen, row, from, column + width, figures);
}

} // namespace

void MonitorView::drawProcessor(Screen &screen, Area area) const
{
    const std::array<Words, 1> figure = {{{monitor::percentText(m_samples.back().cpuUsage), Role::Strong}}};
    putTitle(screen, area.row, area.column, area.width, Text::tr("Processor"), figure);
    const std::array<Curve, 1> curves = {
        {{&MonitorModel::Point::cpu, 1, monitor::percentText(1), Role::Processor}}};
    drawCharts(screen, {area.row + 1, area.column, area.width, area.height - 1}, curves);
}

void MonitorView::drawCores(Screen &screen, Area area) const
{
    const auto cores = static_cast<int>(m_model.perCore.size());
    const auto count = Text::tr("%n cores", nullptr, cores);
    const std::array<Words, 1> figure = {{{count, Role::Quiet}}};
    putTitle(screen, area.row, area.column, area.width, Text::tr("Per core"), figure);
    const Area rest = {area.row + 1, area.column, area.width, area.height - 1};
    if (cores == 0 || rest.height < 1)
        return;
    const int mostColumns = std::max(rest.width / narrowestCoreBar, 1);
    const int barColumns = ceilDivided(cores, rest.height);
    if (barColumns <= mostColumns)
        drawCoreBars(screen, rest, barColumns);
    else
        drawCoreColumns(screen, rest);
}

/// Each core with its number, a bar and its figure, in columns that are read from top to bottom.
void MonitorView::drawCoreBars(Screen &screen, Area area, int barColumns) const
{
    const auto cores = static_cast<int>(m_model.perCore.size());
    const int rows = ceilDivided(cores, barColumns);
    const int width = (area.width + 1) / barColumns - 1;
    const int numberWidth = textWidth(QString::number(cores));
    constexpr int figureWidth = 5;
    const int barWidth = width - numberWidth - 1 - figureWidth;
    for (int core = 0; core < cores; ++core) {
        const double load = m_model.perCore[static_cast<std::size_t>(core)];
        const int row = area.row + core % rows;
        const int column = area.column + core / rows * (width + 1);
        screen.put(row, column, QString::number(core + 1).rightJustified(numberWidth), Role::Quiet);
        drawBar(screen, row, column + numberWidth + 1, barWidth, load, Role::Processor);
        screen.put(row, column + width - figureWidth, monitor::percentText(load).rightJustified(figureWidth));
    }
}

/// A narrow column for each core, for more of them than there is room for bars; in several bands where one is
/// not wide enough. Where even these are not, a column stands for several cores and shows the busiest.
void MonitorView::drawCoreColumns(Screen &screen, Area area) const
{
    const auto cores = static_cast<int>(m_model.perCore.size());
    const int most = std::max(area.width, 1);
    const int bands = std::min(ceilDivided(cores, most), area.height);
    const int group = ceilDivided(cores, bands * most);
    const int columns = ceilDivided(cores, group);
    const int perBand = ceilDivided(columns, bands);
    const int height = area.height / bands;
    const int step = 2 * perBand - 1 <= area.width ? 2 : 1;
    for (int column = 0; column < columns; ++column) {
        const auto first = m_model.perCore.begin() + std::ptrdiff_t{column} * group;
        const double load = *std::max_element(first, first + std::min(group, cores - column * group));
        const int bottom = area.row + (column / perBand + 1) * height - 1;
        drawUprightBar(screen, bottom, area.column + column % perBand * step, height, load, Role::Processor);
    }
}

void MonitorView::drawMemory(Screen &screen, Area area) const
{
    const std::array<Words, 2> figures = {
        {{monitor::memoryText(m_model.memoryUsed, m_formats), Role::Strong},
         //: Stands behind the memory in use; %1 is all that there is.
         {u" "_s + Text::tr("of %1").arg(monitor::memoryText(m_model.memoryTotal, m_formats)), Role::Quiet}}};
    putTitle(screen, area.row, area.column, area.width, Text::tr("Memory"), figures);

    const std::array<Curve, 2> curves = {
        {{&MonitorModel::Point::memory, 1, monitor::percentText(1), Role::Memory},
         {&MonitorModel::Point::pressure, 1, monitor::percentText(1), Role::Pressure}}};
    drawCharts(screen, {area.row + 1, area.column, area.width, area.height - 2}, curves);

    const auto verdict = monitor::pressureVerdict(m_model.pressure);
    const auto concern = monitor::concernOf(verdict);
    const QString space(2, u' ');
    const std::array<Words, 6> all = {
        //: A curve: the memory that is in use.
        {{Text::tr("Used"), Role::Memory},
         {u" "_s + monitor::percentText(m_model.points.back().memory) + space, Role::Text},
         {Text::tr("Pressure"), Role::Pressure},
         {u" "_s + monitor::percentText(m_model.pressure) + space, Role::Text},
         {markOf(concern), roleOf(concern)},
         {title(verdict), Role::Text}}};
    // The verdict is what must be left where there is no room for all of it.
    std::span<const Words> legend(all);
    while (legend.size() > 2 && widthOf(legend) > area.width)
        legend = legend.subspan(2);
    if (area.height > 1)
        putWords(screen, area.row + area.height - 1, area.column, area.column + area.width, legend);
}

void MonitorView::drawNetwork(Screen &screen, Area area) const
{
    const auto rate = [this](double value) { return monitor::rateText(value, m_formats); };
    const auto heading = Text::tr("Network");
    //: Network traffic that comes in; the next: that goes out.
    std::array<Words, 4> figures = {{{u"↓ "_s + Text::tr("In"), Role::NetworkIn},
                                     {u" "_s + rate(m_model.networkIn), Role::Text},
                                     {u"  ↑ "_s + Text::tr("Out"), Role::NetworkOut},
                                     {u" "_s + rate(m_model.networkOut), Role::Text}}};
    if (textWidth(heading) + 1 + widthOf(figures) > area.width) { // the arrows say it too
        figures[0].text = u"↓"_s;
        figures[2].text = u"  ↑"_s;
    }
    putTitle(screen, area.row, area.column, area.width, heading, figures);
    const auto topLabel = rate(m_networkTop);
    const std::array<Curve, 2> curves = {
        {{&MonitorModel::Point::networkIn, m_networkTop, topLabel, Role::NetworkIn},
         {&MonitorModel::Point::networkOut, m_networkTop, topLabel, Role::NetworkOut}}};
    drawCharts(screen, {area.row + 1, area.column, area.width, area.height - 1}, curves);
}

/// One above the other, the time below; those for which there is no row are left out.
void MonitorView::drawCharts(Screen &screen, Area area, std::span<const Curve> curves) const
{
    const auto count = std::min(static_cast<int>(curves.size()), area.height);
    if (count < 1)
        return;
    const int axisWidth = area.width < axisLabelFrom ? 0 : 1 + textWidth(curves.front().topLabel);
    const bool hasTime = area.height >= timeAxisFrom * count;
    Area chart = {area.row, area.column, area.width - axisWidth, 0};
    int left = area.height - (hasTime ? 1 : 0);
    for (int i = 0; i < count; ++i) {
        const Curve &curve = curves[static_cast<std::size_t>(i)];
        chart.height = ceilDivided(left, count - i);
        auto values = monitor::columns(monitor::series(m_model.points, curve.value),
                                       static_cast<std::size_t>(std::max(chart.width, 0) * dotsAcross));
        for (auto &value : values)
            value = value ? std::optional(*value / curve.top) : std::nullopt;
        drawCurve(screen, chart, values, curve.role);
        if (axisWidth > 0)
            screen.put(chart.row, chart.column + chart.width + 1, curve.topLabel, Role::Quiet);
        if (axisWidth > 0 && chart.height > 1)
            screen.put(chart.row + chart.height - 1, chart.column + chart.width + 1, u"0"_s, Role::Quiet);
        chart.row += chart.height;
        left -= chart.height;
    }
    if (!hasTime)
        return;
    const auto now = Text::tr("Now");
    const auto minute = Text::tr("1 min");
    screen.put(chart.row, chart.column, Text::tr("2 min"), Role::Quiet);
    screen.put(chart.row, chart.column + (chart.width - textWidth(minute)) / 2, minute, Role::Quiet);
    screen.put(chart.row, chart.column + chart.width - textWidth(now), now, Role::Quiet);
}

std::vector<std::vector<std::vector<MonitorView::Words>>> MonitorView::tiles(int width) const
{
    const auto concern = monitor::concernOf(m_model.thermal);
    std::vector<std::vector<Words>> all = {
        {{Text::tr("Thermal state"), Role::Quiet},
         {u" "_s + markOf(concern), roleOf(concern)},
         {title(m_model.thermal), Role::Text}},
        {{Text::tr("Swap used"), Role::Quiet},
         {u" "_s + monitor::swapText(m_model.swapUsed, m_formats), Role::Text}}};
    if (m_model.battery)
        all.push_back({{monitor::batteryTitle(m_model.charging.value_or(false)), Role::Quiet},
                       {u" "_s + monitor::percentText(*m_model.battery), Role::Text}});

    std::vector<std::vector<std::vector<Words>>> rows(1);
    int column = 0;
    for (auto &tile : all) {
        const int tileWidth = widthOf(tile);
        if (column > 0 && column + tileWidth > width) {
            rows.emplace_back();
            column = 0;
        }
        rows.back().push_back(std::move(tile));
        column += tileWidth + gap;
    }
    return rows;
}

} // namespace quillmark::cli
