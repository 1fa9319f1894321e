// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

namespace quillmark::monitor {
class LiveMonitor;
}

namespace quillmark::app {

/// Counts one view of live figures in at the monitor while it can be seen, and out again, whichever way it
/// goes: another page, a minimised or closed window, the end of the view.
///
/// Lives on the main thread.
class Watching : public QObject
{
    Q_OBJECT

public:
    /// Follows the view, which becomes the parent.
    Watching(monitor::LiveMonitor &monitor, QWidget &view);
    /// For what is no widget: counted in when setShown() says so.
    Watching(monitor::LiveMonitor &monitor, QObject *parent);
    ~Watching() override;

    void setShown(bool isShown);
    bool isShown() const { return m_isShown; }

private:
    monitor::LiveMonitor &m_monitor;
    bool m_isShown = false;
};

} // namespace quillmark::app
