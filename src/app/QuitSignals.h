// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/posix/spawning.h"

#include <QObject>

namespace quillmark::app {

/// The signals by which a session or a terminal ends its programs (SIGTERM, SIGHUP, SIGINT), while the object
/// lives. Those that the program was started to ignore stay ignored. The same signal a second time ends the
/// program at once. There is to be one object at a time, on the main thread.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);
    ~QuitSignals() override;

Q_SIGNALS:
    /// The program is to end as if the user had said so.
    void quitAsked();

private:
    platform::Pipe m_pipe; ///< readable once a signal has come
};

} // namespace quillmark::app
