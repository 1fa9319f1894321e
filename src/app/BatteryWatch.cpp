// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/BatteryWatch.h"

#include "inspection/DeviceProbe.h"

#include <chrono>
#include <utility>

namespace quillmark::app {

using namespace std::chrono_literals;
using battery::BatteryReading;

BatteryWatch::BatteryWatch(const platform::Machine &machine, QObject *parent)
    : QObject(parent)
    , m_machine(machine)
{
    m_timer.setInterval(30s);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    m_workers.setMaxThreadCount(2);
    connect(&m_timer, &QTimer::timeout, this, &BatteryWatch::read);
}

BatteryWatch::~BatteryWatch()
{
    m_workers.waitForDone();
}

void BatteryWatch::setShown(bool isShown)
{
    if (isShown == m_timer.isActive())
        return;
    if (!isShown) {
        m_timer.stop();
        return;
    }
    m_timer.start();
    read();
    askSystem();
}

void BatteryWatch::read()
{
    if (std::exchange(m_isReading, true))
        return;
    m_workers.start([this] {
        auto batteries =
            battery::readBatteries(m_machine, inspection::DeviceProbe::isAppleSilicon(m_machine));
        QMetaObject::invokeMethod(
            this, [this, batteries = std::move(batteries)]() mutable { take(std::move(batteries)); },
            Qt::QueuedConnection);
    });
}

void BatteryWatch::take(std::vector<BatteryReading> batteries)
{
    m_isReading = false;
    m_moment = QDateTime::currentDateTime();
    m_batteries = std::move(batteries);
    addReported();
    Q_EMIT changed();
}

void BatteryWatch::askSystem()
{
    if (std::exchange(m_isAsking, true))
        return;
    m_workers.start([this] {
        const auto reported = battery::reportedMaximumPercent(m_machine);
        QMetaObject::invokeMethod(
            this,
            [this, reported] {
                m_isAsking = false;
                if (std::exchange(m_reported, reported) == reported || !m_batteries)
                    return;
                addReported();
                Q_EMIT changed();
            },
            Qt::QueuedConnection);
    });
}

/// The system speaks of the machine's first battery.
void BatteryWatch::addReported()
{
    if (!m_batteries->empty())
        m_batteries->front().reportedMaximumPercent = m_reported;
}

} // namespace quillmark::app
