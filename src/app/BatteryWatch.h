// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "battery/BatteryReading.h"

#include <QDateTime>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <optional>
#include <vector>

namespace quillmark::app {

/// Reads the batteries every 30 seconds while somebody looks at them.
///
/// Lives on the main thread and reads on others, since a battery's controller may take its time. Its end
/// waits for a reading that is under way.
class BatteryWatch : public QObject
{
    Q_OBJECT

public:
    /// The machine outlives the object.
    explicit BatteryWatch(const platform::Machine &machine, QObject *parent = nullptr);
    ~BatteryWatch() override;

    /// Whether somebody looks. When that begins, everything is read at once, and the system is asked for its
    /// own figure, which takes seconds and joins the readings later.
    void setShown(bool isShown);
    bool isShown() const { return m_timer.isActive(); }
    /// Reads now, unless a reading is under way.
    void read();

    /// Absent before the first reading; empty without a battery.
    const std::optional<std::vector<battery::BatteryReading>> &batteries() const { return m_batteries; }
    /// When they were read.
    const QDateTime &moment() const { return m_moment; }

Q_SIGNALS:
    void changed();

private:
    void take(std::vector<battery::BatteryReading> batteries);
    void askSystem();
    void addReported();

    const platform::Machine &m_machine;
    QTimer m_timer;
    QThreadPool m_workers;
    bool m_isReading = false;
    bool m_isAsking = false;
    std::optional<int> m_reported; ///< the system's own figure
    std::optional<std::vector<battery::BatteryReading>> m_batteries;
    QDateTime m_moment;
};

} // namespace quillmark::app
