// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/Quillmark.h"

#include "inspection/DeviceProbe.h"

#include <utility>

namespace quillmark::inspection {

Quillmark::Quillmark(const platform::Machine &machine, const language::LanguageManager &language,
                     Pasteboard &pasteboard, ReportText reportText, QObject *parent)
    : QObject(parent)
    , m_machine(machine)
    , m_language(language)
    , m_pasteboard(pasteboard)
    , m_reportText(std::move(reportText))
{
    // The handler runs on a thread of the monitor's and owns nothing of this object: the call that it posts
    // is dropped if the object has gone by the time the event loop comes to it.
    m_monitor = m_machine.network().watchPath([this](const platform::NetworkPath &path) {
        QMetaObject::invokeMethod(
            this, [this, path] { pathChanged(path); }, Qt::QueuedConnection);
    });
}

/// The watch ends first, so that no report can meet an object that is half gone.
Quillmark::~Quillmark()
{
    m_monitor.reset();
}

qsizetype Quillmark::count(CapabilityStatus status) const
{
    return inspection::count(m_sections, status);
}

double Quillmark::score() const
{
    return capabilityScore(m_sections);
}

void Quillmark::refresh()
{
    m_summary = DeviceProbe::summary(m_machine, m_language.formats());
    m_sections = DeviceProbe::sections(m_machine, m_language.formats(), m_networkPath);
    m_lastUpdated = QDateTime::currentDateTimeUtc();
    Q_EMIT refreshed();
}

void Quillmark::copyReport()
{
    m_pasteboard.clear();
    m_pasteboard.setText(m_reportText(m_sections, m_lastUpdated));
}

/// Of several changes at once one inspection is enough.
void Quillmark::pathChanged(const platform::NetworkPath &path)
{
    m_networkPath = path;
    if (std::exchange(m_isRefreshDue, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRefreshDue = false;
            refresh();
        },
        Qt::QueuedConnection);
}

} // namespace quillmark::inspection
