// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Visibility.h"

#include <QEvent>
#include <QWidget>

namespace quillmark::app {

Visibility::Visibility(QWidget &view)
    : QObject(&view)
    , m_view(view)
{
    view.installEventFilter(this);
    followWindow();
}

bool Visibility::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::WindowStateChange:
        followWindow();
        break;
    case QEvent::Hide:
        // A minimised window hides what is in it as far as the window system knows; the widgets stay shown.
        if (object == &m_view && !m_view.isVisible())
            set(false);
        break;
    default:
        break;
    }
    return false;
}

void Visibility::followWindow()
{
    if (m_window != m_view.window()) {
        if (m_window && m_window != &m_view)
            m_window->removeEventFilter(this);
        m_window = m_view.window();
        m_window->installEventFilter(this); // moves to the front where it was there already
    }
    set(m_view.isVisible() && !m_window->isMinimized());
}

void Visibility::set(bool isVisible)
{
    if (isVisible == m_isVisible)
        return;
    m_isVisible = isVisible;
    Q_EMIT changed(isVisible);
}

} // namespace quillmark::app
