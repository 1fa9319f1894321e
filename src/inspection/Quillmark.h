// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"
#include "language/LanguageManager.h"
#include "platform/Machine.h"

#include <QDateTime>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillmark::inspection {

/// Where copied text goes: the system's general pasteboard, or a test's.
class Pasteboard
{
public:
    virtual ~Pasteboard() = default;
    virtual void clear() = 0;
    virtual void setText(const QString &text) = 0;
};

/// The inspection that the whole interface watches: the latest results, and inspecting again.
///
/// Lives on the main thread. What it is given must outlive it.
class Quillmark : public QObject
{
    Q_OBJECT

public:
    /// The plain-text report of an inspection.
    using ReportText = std::function<QString(const QList<CapabilitySection> &sections,
                                             const std::optional<QDateTime> &lastUpdated)>;

    /// Begins to watch the network path, and inspects nothing yet: the first inspection comes with the first
    /// path, shortly after the event loop runs, or from refresh(). A machine that reports no path is
    /// inspected only by refresh().
    Quillmark(const platform::Machine &machine, const language::LanguageManager &language,
              Pasteboard &pasteboard, ReportText reportText, QObject *parent = nullptr);
    ~Quillmark() override;

    /// The three are absent or empty until the first inspection.
    const std::optional<DeviceSummary> &summary() const { return m_summary; }
    const QList<CapabilitySection> &sections() const { return m_sections; }
    const std::optional<QDateTime> &lastUpdated() const { return m_lastUpdated; }

    /// The path that was reported last; absent until the first report.
    const std::optional<platform::NetworkPath> &networkPath() const { return m_networkPath; }

    qsizetype count(CapabilityStatus status) const;
    double score() const;

    /// Inspects the machine now, on this thread, and replaces the results.
    void refresh();

    /// Puts the plain-text report on the pasteboard.
    void copyReport();

Q_SIGNALS:
    /// The results have been replaced.
    void refreshed();

private:
    void pathChanged(const platform::NetworkPath &path);

    const platform::Machine &m_machine;
    const language::LanguageManager &m_language;
    Pasteboard &m_pasteboard;
    ReportText m_reportText;
    std::optional<DeviceSummary> m_summary;
    QList<CapabilitySection> m_sections;
    std::optional<QDateTime> m_lastUpdated;
    std::optional<platform::NetworkPath> m_networkPath;
    bool m_isRefreshDue = false; ///< for a path that has just come
    std::unique_ptr<platform::PathWatch> m_monitor;
};

} // namespace quillmark::inspection
