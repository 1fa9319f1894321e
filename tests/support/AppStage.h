// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/Appearance.h"
#include "app/painting.h"
#include "history/ScanHistory.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"
#include "reports/Report.h"
#include "settings/Settings.h"
#include "support/Recordings.h"

#include <QTemporaryDir>

#include <chrono>
#include <memory>

namespace quillmark::support {

/// A clipboard of the test's own.
class TestPasteboard final : public inspection::Pasteboard
{
public:
    QString text;
    void clear() override { text.clear(); }
    void setText(const QString &newText) override { text = newText; }
};

/// What a window works with: a recorded machine, and settings and a history of its own that go with it. The
/// monitor takes a sample every few milliseconds.
class AppStage
{
public:
    explicit AppStage(const QByteArray &recording)
        : machine(machineFrom(recording))
    {
        app::watchFocus();
        app::Appearance::current();
    }

    /// Inspects without waiting for a path.
    void inspect() { inspection.refresh(); }

    QTemporaryDir folder;
    std::unique_ptr<platform::Machine> machine;
    settings::Settings settings{folder.filePath(QStringLiteral("settings.conf"))};
    language::LanguageManager language{{QStringLiteral("en")}};
    history::ScanHistory history{language, folder.filePath(QStringLiteral("snapshots.json"))};
    monitor::LiveMonitor monitor{*machine, std::chrono::milliseconds(5)};
    TestPasteboard pasteboard;
    inspection::Quillmark inspection{
        *machine, language, pasteboard,
        [this](const QList<inspection::CapabilitySection> &sections, const std::optional<QDateTime> &date) {
            return reports::plainText({date, language.language(),
                                       inspection.summary().value_or(inspection::DeviceSummary()), sections});
        }};
    app::AppContext context{*machine, settings, language, inspection, history, monitor};
};

} // namespace quillmark::support
