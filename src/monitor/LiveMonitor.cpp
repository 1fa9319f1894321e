// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/LiveMonitor.h"

#include "monitor/SystemSampler.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <functional>
#include <utility>

namespace quillmark::monitor {

namespace {

/// A chart must not join a stretch that ended longer ago than this, in seconds, to fresh figures.
constexpr double staleAfter = 5.0;

const platform::Machine *machineToShare = nullptr;
LiveMonitor *sharedMonitor = nullptr;

bool isStale(const MonitorSample &newest)
{
    const auto now = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    return secondsBetween(newest.date, now) > staleAfter;
}

} // namespace

/// Takes the samples. The timer is there exactly while sampling runs.
class LiveMonitor::Worker final : public QObject
{
public:
    Worker(const platform::Machine &machine, std::chrono::milliseconds interval,
           std::function<void(MonitorSample)> deliver)
        : m_sampler(machine)
        , m_interval(interval)
        , m_deliver(std::move(deliver))
    {}

    void begin()
    {
        m_sampler.prime();
        m_timer = std::make_unique<QTimer>();
        // May fire up to a twentieth early or late, so that the system can wake up once for several timers.
        m_timer->setTimerType(Qt::CoarseTimer);
        m_timer->setInterval(m_interval);
        QObject::connect(m_timer.get(), &QTimer::timeout, this, [this] { m_deliver(m_sampler.sample()); });
        m_timer->start();
    }

    void end() { m_timer.reset(); }

private:
    SystemSampler m_sampler;
    std::chrono::milliseconds m_interval;
    std::function<void(MonitorSample)> m_deliver;
    std::unique_ptr<QTimer> m_timer;
};

LiveMonitor::LiveMonitor(const platform::Machine &machine, std::chrono::milliseconds interval)
    : m_thread(std::make_unique<QThread>())
    , m_worker(std::make_unique<Worker>(machine, interval, [this](MonitorSample sample) {
        QMetaObject::invokeMethod(
            this, [this, sample = std::move(sample)] { append(sample); }, Qt::QueuedConnection);
    }))
{
    m_thread->setObjectName(QStringLiteral("com.tarnwick.Quillmark.LiveMonitor"));
    m_worker->moveToThread(m_thread.get());
    m_thread->start(QThread::LowPriority);
}

LiveMonitor::~LiveMonitor()
{
    QMetaObject::invokeMethod(m_worker.get(), [worker = m_worker.get()] { worker->end(); });
    m_thread->quit();
    m_thread->wait();
}

LiveMonitor &LiveMonitor::shared()
{
    if (!sharedMonitor) {
        static const std::unique_ptr<platform::Machine> own =
            machineToShare ? nullptr : platform::thisMachine();
        sharedMonitor = new LiveMonitor(machineToShare ? *machineToShare : *own);
        // A thread must not outlive what the application object holds together.
        qAddPostRoutine([] { delete std::exchange(sharedMonitor, nullptr); });
    }
    return *sharedMonitor;
}

void LiveMonitor::setSharedMachine(const platform::Machine &machine)
{
    Q_ASSERT(!sharedMonitor);
    machineToShare = &machine;
}

void LiveMonitor::start()
{
    if (++m_clients > 1)
        return;
    if (!m_samples.empty() && isStale(m_samples.back())) {
        m_samples.clear();
        m_latest.reset();
        Q_EMIT samplesChanged();
    }
    QMetaObject::invokeMethod(m_worker.get(), [worker = m_worker.get()] { worker->begin(); });
}

void LiveMonitor::stop()
{
    if (m_clients < 1 || --m_clients > 0)
        return;
    QMetaObject::invokeMethod(m_worker.get(), [worker = m_worker.get()] { worker->end(); });
}

void LiveMonitor::append(const MonitorSample &sample)
{
    if (m_clients < 1)
        return; // the last view went away while this was on its way
    appendSample(m_samples, sample);
    m_latest = sample;
    Q_EMIT samplesChanged();
}

} // namespace quillmark::monitor
