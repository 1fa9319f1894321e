// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/LiveMonitor.h"

#include "monitor/SystemSampler.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

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

/// Takes the samples, on the worker thread. The timer is there exactly while sampling runs.
class LiveMonitor::Worker final : public QObject
{
public:
    Worker(const platform::Machine &machine, std::chrono::milliseconds interval, LiveMonitor &monitor)
        : m_sampler(machine)
        , m_interval(interval)
        , m_monitor(monitor)
    {}

    void begin()
    {
        m_sampler.prime();
        m_timer = std::make_unique<QTimer>();
        // May fire up to a twentieth early or late, so that the system can wake up once for several timers.
        m_timer->setTimerType(Qt::CoarseTimer);
        m_timer->setInterval(m_interval);
        QObject::connect(m_timer.get(), &QTimer::timeout, this, [this] { sample(); });
        m_timer->start();
    }

    void end() { m_timer.reset(); }

private:
    void sample()
    {
        auto sample = m_sampler.sample();
        {
            const std::lock_guard lock(m_monitor.m_takenMutex);
            m_monitor.m_taken.push_back(std::move(sample));
        }
        Q_EMIT m_monitor.sampleTaken(LiveMonitor::QPrivateSignal());
    }

    SystemSampler m_sampler;
    std::chrono::milliseconds m_interval;
    LiveMonitor &m_monitor; ///< outlives the thread
    std::unique_ptr<QTimer> m_timer;
};

LiveMonitor::LiveMonitor(const platform::Machine &machine, std::chrono::milliseconds interval)
    : m_thread(std::make_unique<QThread>())
{
    auto worker = std::make_unique<Worker>(machine, interval, *this);
    worker->moveToThread(m_thread.get());
    connect(this, &LiveMonitor::beginAsked, worker.get(), &Worker::begin);
    connect(this, &LiveMonitor::endAsked, worker.get(), &Worker::end);
    connect(this, &LiveMonitor::sampleTaken, this, &LiveMonitor::appendTaken, Qt::QueuedConnection);
    // It ends where it has lived.
    connect(m_thread.get(), &QThread::finished, worker.release(), &QObject::deleteLater);
    m_thread->setObjectName(QStringLiteral("com.tarnwick.Quillmark.LiveMonitor"));
    m_thread->start(QThread::LowPriority);
}

LiveMonitor::~LiveMonitor()
{
    // The worker, which ends on its thread, then has nothing to tell an object that is ending on this one.
    disconnect();
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
    Q_EMIT beginAsked(QPrivateSignal());
}

void LiveMonitor::stop()
{
    if (m_clients < 1)
        return;
    --m_clients;
    if (m_clients == 0)
        Q_EMIT endAsked(QPrivateSignal());
}

void LiveMonitor::appendTaken()
{
    std::vector<MonitorSample> taken;
    {
        const std::lock_guard lock(m_takenMutex);
        taken.swap(m_taken);
    }
    for (const auto &sample : taken)
        append(sample);
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
