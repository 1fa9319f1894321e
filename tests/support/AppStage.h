// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/Appearance.h"
#include "app/painting.h"
#include "history/ScanHistory.h"
#include "history/snapshotJson.h"
#include "inspection/Quillmark.h"
#include "language/LanguageManager.h"
#include "monitor/LiveMonitor.h"
#include "reports/Report.h"
#include "settings/Settings.h"
#include "support/Recordings.h"

#include <QFile>
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
    /// The scans are those that were saved before, newest first.
    explicit AppStage(const QByteArray &recording, const QList<history::ScanSnapshot> &scans = {})
        : machine(machineFrom(recording))
        , history(language, saved(scans))
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
    history::ScanHistory history;
    monitor::LiveMonitor monitor{*machine, std::chrono::milliseconds(5)};
    TestPasteboard pasteboard;
    inspection::Quillmark inspection{
        *machine, language, pasteboard,
        [this](const QList<inspection::CapabilitySection> &sections, const std::optional<QDateTime> &date) {
            return reports::plainText({date, language.language(),
                                       inspection.summary().value_or(inspection::DeviceSummary()), sections});
        }};
    app::AppContext context{*machine, settings, language, inspection, history, monitor};

    QString historyFile() const { return folder.filePath(QStringLiteral("snapshots.json")); }

private:
    QString saved(const QList<history::ScanSnapshot> &scans) const
    {
        QByteArrayList texts;
        for (const auto &scan : scans)
            texts += history::encoded(scan);
        QFile file(historyFile());
        if (!scans.isEmpty() &&
            (!file.open(QIODevice::WriteOnly) || file.write('[' + texts.join(',') + ']') < 0))
            qFatal("%s", qPrintable(file.errorString()));
        return historyFile();
    }
};

} // namespace quillmark::support
