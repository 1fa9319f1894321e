// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/MenuBarLabel.h"

#include "app/Appearance.h"
#include "app/settingKeys.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"
#include "monitor/MonitorModel.h"
#include "monitor/texts.h"

namespace quillmark::app {

using namespace Qt::StringLiterals;
using monitor::MonitorModel;

MenuBarLabel::MenuBarLabel(const AppContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_watching(new Watching(context.monitor, this))
{
    connect(&context.monitor, &monitor::LiveMonitor::samplesChanged, this, &MenuBarLabel::update);
    connect(&context.language, &language::LanguageManager::languageChanged, this, &MenuBarLabel::update);
    connect(&context.settings, &settings::Settings::changed, this, &MenuBarLabel::update);
    m_announced = toolTip();
}

QIcon MenuBarLabel::icon()
{
    auto &appearance = Appearance::current();
    QIcon icon;
    // Panels are light or dark whatever the windows are; this colour stands out from both.
    for (const int size : {16, 22, 32, 44})
        icon.addPixmap(
            appearance.icon(u"gauge.with.dots.needle.33percent"_s, size, design::Role::ControlStrong, 1));
    icon.setIsMask(true);
    return icon;
}

QString MenuBarLabel::figure() const
{
    const auto &latest = m_context.monitor.latest();
    const auto choice = m_context.settings.value(keys::menuBarFigure);
    if (!latest || choice == u"none"_s)
        return {};
    if (choice != u"memory"_s)
        return monitor::percentText(latest->cpuUsage);
    return monitor::percentText(MonitorModel({&*latest, 1}, latest).points.front().memory);
}

QString MenuBarLabel::toolTip() const
{
    auto name = tr("Quillmark live monitor");
    const auto shown = figure();
    if (shown.isEmpty())
        return name;
    const bool isMemory = m_context.settings.value(keys::menuBarFigure) == u"memory"_s;
    return name + u'\n' + (isMemory ? tr("Memory used: %1") : tr("Processor load: %1")).arg(shown);
}

void MenuBarLabel::update()
{
    const auto now = toolTip();
    if (now == m_announced)
        return;
    m_announced = now;
    Q_EMIT changed();
}

} // namespace quillmark::app
