// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/models/ExportFormat.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace quillmark::app {

class ExportDialog;
class NoticeBar;

/// Saves the inspection to a file of the user's choice: the dialog, the system's panel, and the notice of
/// what came of it.
class ReportExport : public QObject
{
    Q_OBJECT

public:
    ReportExport(const AppContext &context, NoticeBar &notices, QWidget *window);

    /// Asks as what and where. There has to be an inspection.
    void begin();

private:
    void choosePlace(ExportFormat format, const reports::Report &report);
    void save(const QString &file, ExportFormat format, const reports::Report &report);

    const AppContext &m_context;
    NoticeBar &m_notices;
    QWidget *m_window;
    QPointer<ExportDialog> m_dialog;
};

} // namespace quillmark::app
