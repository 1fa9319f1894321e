// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/LiveMonitor.h"

#include "support/ChangedMachine.h"
#include "support/Recordings.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <semaphore>
#include <span>

using namespace quillmark;
using namespace quillmark::monitor;
using namespace quillmark::support;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// Counters whose readings are counted, and can be held up.
class StagedCounters final : public platform::Counters
{
public:
    std::int64_t pageSize() const override { return 4096; }
    std::unique_ptr<platform::CounterReader> reader() const override
    {
        return std::make_unique<Reader>(*const_cast<StagedCounters *>(this));
    }

    std::atomic<int> readings = 0;
    std::atomic<bool> isHeldUp = false;
    std::binary_semaphore reached{0}; ///< by a reading that is held up
    std::binary_semaphore goOn{0};
    std::atomic<QThread *> thread = nullptr; ///< of the last reading
    platform::CounterReading next;           ///< what is read, but for the date

private:
    class Reader final : public platform::CounterReader
    {
    public:
        explicit Reader(StagedCounters &stage)
            : m_stage(stage)
        {}

        platform::CounterReading read() override
        {
            m_stage.thread = QThread::currentThread();
            if (m_stage.isHeldUp) {
                m_stage.reached.release();
                m_stage.goOn.acquire();
            }
            auto reading = m_stage.next;
            ++m_stage.readings;
            return reading;
        }

    private:
        StagedCounters &m_stage;
    };
};

class Staged final : public QObject
{
public:
    Staged() { machine.otherCounters = &counters; }

    std::unique_ptr<platform::Machine> mac = changedMachine();
    StagedCounters counters;
    ChangedMachine machine{*mac};
};

} // namespace

class LiveMonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoMinutes();
    void clientsShareOneTimer();
    void staleHistory();
    void lateSampleIsDropped();
    void endsWhileSampling();
    void sharedOne();
};

void LiveMonitorTest::twoMinutes()
{
    Staged staged;
    LiveMonitor monitor(staged.machine, 1ms);
    std::vector<MonitorSample> all;
    connect(&monitor, &LiveMonitor::samplesChanged, this, [&] { all.push_back(*monitor.latest()); });
    QVERIFY(!monitor.latest());
    monitor.start();
    QTRY_VERIFY_WITH_TIMEOUT(all.size() >= 130, 60000);
    monitor.stop();
    QCOMPARE(monitor.samples().size(), std::size_t(120));
    QVERIFY(std::ranges::equal(monitor.samples(), std::span(all).last(120)));
    QVERIFY(staged.counters.thread != QThread::currentThread());
}

/// Closing one of two views goes on sampling, closing both stops it; nothing is read while nobody watches.
void LiveMonitorTest::clientsShareOneTimer()
{
    Staged staged;
    LiveMonitor monitor(staged.machine, 1ms);
    QSignalSpy changes(&monitor, &LiveMonitor::samplesChanged);
    monitor.stop();
    QCOMPARE(monitor.clients(), 0);
    QTest::qWait(20);
    QCOMPARE(int(staged.counters.readings), 0);

    monitor.start();
    monitor.start();
    QTRY_VERIFY_WITH_TIMEOUT(changes.size() >= 3, 60000);
    monitor.stop();
    QVERIFY(monitor.isSampling());
    const auto before = changes.size();
    QTRY_VERIFY_WITH_TIMEOUT(changes.size() > before, 60000);
    monitor.stop();
    monitor.stop();
    QCOMPARE(monitor.clients(), 0);
    QVERIFY(!monitor.samples().empty());
    // Whatever was under way ends, and then there is quiet.
    QTest::qWait(50);
    const int readings = staged.counters.readings;
    QTest::qWait(50);
    QCOMPARE(int(staged.counters.readings), readings);
}

void LiveMonitorTest::staleHistory()
{
    // By the age of the newest sample; the last is one of a clock that was set back since.
    for (const auto &[age, isKept] :
         QList<std::pair<std::chrono::milliseconds, bool>>{{1s, true}, {5100ms, false}, {-1h, true}}) {
        Staged staged;
        staged.counters.next.date =
            std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now()) - age;
        LiveMonitor monitor(staged.machine, 1ms);
        monitor.start();
        QTRY_VERIFY_WITH_TIMEOUT(monitor.latest(), 60000);
        monitor.stop();
        monitor.start();
        QCOMPARE(monitor.samples().empty(), !isKept);
        QCOMPARE(monitor.latest().has_value(), isKept);
        monitor.stop();
    }
}

void LiveMonitorTest::lateSampleIsDropped()
{
    Staged staged;
    LiveMonitor monitor(staged.machine, 1ms);
    monitor.start();
    QTRY_VERIFY_WITH_TIMEOUT(monitor.latest(), 60000);
    staged.counters.isHeldUp = true;
    staged.counters.reached.acquire();
    // The view goes while this reading is under way; those before it are delivered.
    QCoreApplication::processEvents();
    monitor.stop();
    const auto kept = monitor.samples().size();
    staged.counters.isHeldUp = false;
    staged.counters.goOn.release();
    QTest::qWait(50);
    QCOMPARE(monitor.samples().size(), kept);
    QCOMPARE(int(staged.counters.readings) > int(kept), true);
}

void LiveMonitorTest::endsWhileSampling()
{
    Staged staged;
    for (int round = 0; round < 20; ++round) {
        LiveMonitor monitor(staged.machine, 1ms);
        monitor.start();
        if (round % 2 == 0)
            QTest::qWait(3);
    }
    const int readings = staged.counters.readings;
    QTest::qWait(20);
    QCOMPARE(int(staged.counters.readings), readings);
}

void LiveMonitorTest::sharedOne()
{
    Staged staged;
    LiveMonitor::setSharedMachine(staged.machine);
    auto &monitor = LiveMonitor::shared();
    QCOMPARE(&LiveMonitor::shared(), &monitor);
    QSignalSpy changes(&monitor, &LiveMonitor::samplesChanged);
    monitor.start();
    QVERIFY(changes.wait(60000)); // at its own pace of one a second
    monitor.stop();
    QVERIFY(staged.counters.readings >= 2);
}

QTEST_GUILESS_MAIN(LiveMonitorTest)
#include "LiveMonitorTest.moc"
