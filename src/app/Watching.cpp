// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Watching.h"

#include "monitor/LiveMonitor.h"

#include <QEvent>
#include <QWidget>

namespace quillmark::app {

Watching::Watching(monitor::LiveMonitor &monitor, QWidget &view)
    : QObject(&view)
    , m_monitor(monitor)
    , m_view(&view)
{
    view.installEventFilter(this);
    followWindow();
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

bool Watching::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::WindowStateChange:
        followWindow();
        break;
    case QEvent::Hide:
        // A minimised window hides what is in it as far as the window system knows; the widgets stay shown.
        if (object == m_view && !m_view->isVisible())
            setShown(false);
        break;
    default:
        break;
    }
    return false;
}

void Watching::followWindow()
{
    if (m_window != m_view->window()) {
        if (m_window && m_window != m_view)
            m_window->removeEventFilter(this);
        m_window = m_view->window();
        m_window->installEventFilter(this); // moves to the front where it was there already
    }
    setShown(m_view->isVisible() && !m_window->isMinimized());
}

} // namespace quillmark::app
