// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Watching.h"

#include "app/Visibility.h"
#include "monitor/LiveMonitor.h"

#include <QWidget>

namespace quillmark::app {

Watching::Watching(monitor::LiveMonitor &monitor, QWidget &view)
    : QObject(&view)
    , m_monitor(monitor)
{
    const auto *visibility = new Visibility(view);
    connect(visibility, &Visibility::changed, this, &Watching::setShown);
    setShown(visibility->isVisible());
}

Watching::Watching(monitor::LiveMonitor &monitor, QObject *parent)
    : QObject(parent)
    , m_monitor(monitor)
{}

Watching::~Watching()
{
    setShown(false);
}

void Watching::setShown(bool isShown)
{
    if (isShown == m_isShown)
        return;
    m_isShown = isShown;
    if (isShown)
        m_monitor.start();
    else
        m_monitor.stop();
}

} // namespace quillmark::app
