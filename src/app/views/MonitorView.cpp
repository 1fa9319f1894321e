// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/views/MonitorView.h"

#include "app/Watching.h"
#include "app/monitorTexts.h"
#include "app/painting.h"
#include "app/views/MonitorCard.h"
#include "app/widgets/ChartView.h"
#include "app/widgets/CoreBars.h"
#include "app/widgets/EmptyState.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"
#include "monitor/texts.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using design::Role;
using monitor::MonitorModel;
using Part = FigureLine::Part;

namespace {

// In logical pixels.
constexpr int gap = 16;
constexpr int upperCardHeight = 238;
constexpr int lowerCardHeight = 256;
constexpr int networkGutter = 62;
constexpr int legendGap = 22;
constexpr int valueGap = 8;

/// A screen reader that hears of every figure would never fall silent.
constexpr std::chrono::milliseconds describedEvery = 10s;

Part caption(const QString &text, Role color = Role::Text3)
{
    return {.text = text, .font = TextRole::Small, .color = color};
}

/// A series of a chart and its figure.
void addSeries(std::vector<Part> &legend, const QString &name, const QString &value, Part::Swatch swatch,
               Role color)
{
    legend.push_back({.text = name,
                      .color = Role::Text2,
                      .gap = legend.empty() ? 0 : legendGap,
                      .symbolColor = color,
                      .swatch = swatch});
    legend.push_back({.text = value, .weight = QFont::DemiBold, .gap = valueGap});
}

} // namespace

MonitorView::MonitorView(const AppContext &context, QWidget *parent)
    : Page(parent)
    , m_context(context)
    , m_networkTop(m_networkAxis.update(0))
    , m_collecting(new EmptyState(u"waveform.path.ecg"_s))
    , m_live(makeLive())
{
    m_collecting->setColors(Role::AccentSoft, Role::Accent);
    column()->addWidget(m_collecting);
    column()->addWidget(m_live);
    m_live->hide();
    setFocusPolicy(Qt::TabFocus); // there is nothing in it to go to, but keys scroll it
    new Watching(context.monitor, *this);
    connect(&context.monitor, &monitor::LiveMonitor::samplesChanged, this, [this] {
        if (isVisible())
            follow();
    });
    setUp();
}

QString MonitorView::headerTitle() const
{
    return tr("Live monitor");
}

QString MonitorView::headerSymbol() const
{
    return u"waveform.path.ecg"_s;
}

QString MonitorView::headerNote() const
{
    return tr("Updated every second · last 2 minutes");
}

QWidget *MonitorView::makeLive()
{
    using Point = MonitorModel::Point;
    m_processorChart = new ChartView({{&Point::cpu, Role::ChartProcessor, true}});
    m_cores = new CoreBars;
    m_memoryChart = new ChartView(
        {{&Point::memory, Role::ChartMemory, true}, {&Point::pressure, Role::ChartPressure, false}});
    m_networkChart = new ChartView(
        {{&Point::networkIn, Role::ChartReceived, true}, {&Point::networkOut, Role::ChartSent, false}});
    m_networkChart->setGutter(networkGutter);
    m_processorCard = new MonitorCard(u"cpu"_s, m_processorChart, upperCardHeight);
    m_coresCard = new MonitorCard(u"chart.bar"_s, m_cores, upperCardHeight);
    m_memoryCard = new MonitorCard(u"memorychip"_s, m_memoryChart, lowerCardHeight);
    m_networkCard = new MonitorCard(u"arrow.down.arrow.up"_s, m_networkChart, lowerCardHeight);
    m_thermal = new MonitorTile(u"thermometer.medium"_s);
    m_swap = new MonitorTile(u"arrow.up.arrow.down.square"_s);
    m_battery = new MonitorTile(u"battery.100.bolt"_s);

    auto *live = new QWidget;
    auto *column = new QVBoxLayout(live);
    column->setContentsMargins({});
    column->setSpacing(gap);
    m_cards = new QGridLayout;
    m_cards->setSpacing(gap);
    m_tiles = new QGridLayout;
    m_tiles->setSpacing(gap);
    column->addLayout(m_cards);
    column->addLayout(m_tiles);
    return live;
}

void MonitorView::arrange()
{
    const auto fill = [](QGridLayout *grid, const std::vector<QWidget *> &widgets, int columns) {
        for (auto *widget : widgets)
            grid->removeWidget(widget);
        for (int i = 0; i < static_cast<int>(widgets.size()); ++i)
            grid->addWidget(widgets[static_cast<std::size_t>(i)], i / columns, i % columns);
        for (int column = 0; column < std::max(columns, grid->columnCount()); ++column)
            grid->setColumnStretch(column, column < columns ? 1 : 0);
    };
    fill(m_cards, {m_processorCard, m_coresCard, m_memoryCard, m_networkCard}, isCompact() ? 1 : 2);
    std::vector<QWidget *> tiles = {m_thermal, m_swap};
    m_battery->setVisible(m_model.battery.has_value());
    if (m_model.battery)
        tiles.push_back(m_battery);
    fill(m_tiles, tiles, isCompact() ? 1 : static_cast<int>(tiles.size()));
}

void MonitorView::retranslate()
{
    setAccessibleName(headerTitle());
    m_collecting->setTexts(tr("Collecting samples…"), tr("The first reading arrives in about a second."));
    m_processorCard->setTitle(tr("Processor"));
    m_coresCard->setTitle(tr("Per core"));
    m_memoryCard->setTitle(tr("Memory"));
    m_networkCard->setTitle(tr("Network"));
    m_thermal->setLabel(tr("Thermal state"));
    m_swap->setLabel(tr("Swap used"));
    m_networkCard->setFigures({caption(tr("All interfaces"))});
    m_swap->setNote(isMac(m_context) ? tr("On the start-up volume") : QString());
    const QStringList shares = {monitor::percentText(0), monitor::percentText(0.5), monitor::percentText(1)};
    m_processorChart->setAxis(1, shares);
    m_memoryChart->setAxis(1, shares);
    m_described.invalidate();
    showModel();
}

void MonitorView::focusInEvent(QFocusEvent *event)
{
    Page::focusInEvent(event);
    viewport()->update();
}

void MonitorView::focusOutEvent(QFocusEvent *event)
{
    Page::focusOutEvent(event);
    viewport()->update();
}

void MonitorView::paintEvent(QPaintEvent *)
{
    if (!hasKeyboardFocus(*this))
        return;
    QPainter painter(viewport());
    paintFocusRing(painter, viewport()->rect(), buttonRadius);
}

void MonitorView::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    // In the middle of the page, whose margins are above and below.
    m_collecting->setMinimumHeight(std::max(viewport()->height() - 2 * 24, 0));
}

void MonitorView::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    follow();
}

/// Takes over the history as the monitor has it now.
void MonitorView::follow()
{
    const bool hadBattery = m_model.battery.has_value();
    m_model = MonitorModel(m_context.monitor.samples(), m_context.monitor.latest());
    double highest = 0;
    for (const auto &point : m_model.points)
        highest = std::max({highest, point.networkIn, point.networkOut});
    m_networkTop = m_networkAxis.update(highest);
    if (m_model.battery.has_value() != hadBattery)
        arrange();
    showModel();
}

void MonitorView::showModel()
{
    const bool hasSamples = !m_model.points.empty();
    m_collecting->setVisible(!hasSamples);
    m_live->setVisible(hasSamples);
    if (!hasSamples)
        return;
    const auto &formats = m_context.language.formats();
    const auto &newest = m_model.points.back();

    m_processorChart->setPoints(m_model.points);
    m_processorCard->setFigures(figureParts(monitor::percentText(newest.cpu), layoutDirection()));
    const auto cores = static_cast<int>(m_model.perCore.size());
    m_cores->setLoads(m_model.perCore);
    m_coresCard->setFigures({caption(tr("%n core(s)", nullptr, cores))});
    m_coresCard->setVisible(cores > 0);

    m_memoryChart->setPoints(m_model.points);
    auto memory = figureParts(monitor::memoryText(m_model.memoryUsed, formats), layoutDirection());
    //: after the memory in use: "29.4 GB of 48 GB"
    auto total = caption(tr("of %1").arg(isolated(monitor::memoryText(m_model.memoryTotal, formats))));
    total.gap = valueGap;
    memory.push_back(total);
    m_memoryCard->setFigures(std::move(memory));
    std::vector<Part> legend;
    addSeries(legend, tr("Used"), monitor::percentText(newest.memory), Part::Swatch::Area, Role::ChartMemory);
    addSeries(legend, tr("Pressure"), monitor::percentText(m_model.pressure), Part::Swatch::Line,
              Role::ChartPressure);
    const auto verdict = monitor::pressureVerdict(m_model.pressure);
    const auto style = styleOf(concernOf(verdict));
    m_memoryCard->setLegend(
        std::move(legend),
        {{.text = title(verdict), .color = Role::Text2, .symbol = style.symbol, .symbolColor = style.mark}});
    showNetwork();
    showTiles();
    describe();
}

void MonitorView::showNetwork()
{
    const auto &formats = m_context.language.formats();
    m_networkChart->setAxis(m_networkTop, {QLocale(formats.language()).toString(0),
                                           monitor::axisText(m_networkTop / 2, formats),
                                           monitor::axisText(m_networkTop, formats)});
    m_networkChart->setPoints(m_model.points);
    std::vector<Part> legend;
    addSeries(legend, u"↓ "_s + tr("In"), monitor::rateText(m_model.networkIn, formats), Part::Swatch::Area,
              Role::ChartReceived);
    addSeries(legend, u"↑ "_s + tr("Out"), monitor::rateText(m_model.networkOut, formats), Part::Swatch::Line,
              Role::ChartSent);
    m_networkCard->setLegend(std::move(legend));
}

void MonitorView::showTiles()
{
    const auto &formats = m_context.language.formats();
    m_thermal->setValue(title(m_model.thermal), styleOf(concernOf(m_model.thermal)));
    m_thermal->setNote(thermalNote(m_model.thermal));
    m_swap->setValue(monitor::swapText(m_model.swapUsed, formats));
    if (!m_model.battery)
        return;
    const bool isCharging = m_model.charging.value_or(false);
    m_battery->setLabel(monitor::batteryTitle(isCharging));
    m_battery->setValue(monitor::percentText(*m_model.battery));
    m_battery->setNote(isCharging ? tr("Power adapter connected") : tr("Not charging"));
}

void MonitorView::describe()
{
    if (m_described.isValid() && m_described.elapsed() < describedEvery.count())
        return;
    m_described.start();
    const auto &formats = m_context.language.formats();
    m_processorCard->setDescription(processorDescription(m_model));
    m_coresCard->setDescription(coresDescription(m_model));
    m_memoryCard->setDescription(memoryDescription(m_model, formats));
    m_networkCard->setDescription(networkDescription(m_model, formats));
}

} // namespace quillmark::app
