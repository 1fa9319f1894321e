// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "monitor/MonitorSample.h"
#include "platform/Machine.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class QThread;

namespace quillmark::monitor {

/// The one sampling loop behind every view that shows live figures: while at least one is shown it takes a
/// sample a second, on a thread of its own, and keeps the last two minutes. While none is, nothing is read
/// and no timer runs.
///
/// Everything here belongs to the main thread.
class LiveMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Reads the machine, which must outlive this. Tests are in more of a hurry than a second.
    explicit LiveMonitor(const platform::Machine &machine,
                         std::chrono::milliseconds interval = std::chrono::seconds(1));
    /// Waits for a sample that is being taken.
    ~LiveMonitor() override;

    /// The monitor of this program, from its first use to the end of the application object.
    static LiveMonitor &shared();
    /// Has the shared monitor read this machine, which must outlive it, instead of the one at hand. To be
    /// said before its first use.
    static void setSharedMachine(const platform::Machine &machine);

    /// Oldest first, at most maximumSamples.
    const std::vector<MonitorSample> &samples() const { return m_samples; }
    /// None before the first sample.
    const std::optional<MonitorSample> &latest() const { return m_latest; }
    /// How many views show live figures now.
    int clients() const { return m_clients; }
    bool isSampling() const { return m_clients > 0; }

    /// A view is shown. The first one begins the sampling; a history that has gone stale is dropped then.
    void start();
    /// A view has gone. With the last one the sampling ends; the history is kept.
    void stop();

Q_SIGNALS:
    /// samples() and latest() are others now.
    void samplesChanged();

    // To the worker thread, and back from it.
    void beginAsked(QPrivateSignal);
    void endAsked(QPrivateSignal);
    void sampleTaken(QPrivateSignal);

private:
    class Worker;

    void appendTaken();
    void append(const MonitorSample &sample);

    int m_clients = 0;
    std::vector<MonitorSample> m_samples;
    std::optional<MonitorSample> m_latest;
    std::mutex m_takenMutex;
    std::vector<MonitorSample> m_taken; ///< on their way from the worker thread to append()
    std::unique_ptr<QThread> m_thread;
};

} // namespace quillmark::monitor
