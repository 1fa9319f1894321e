// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/dialogs/ContentDialog.h"
#include "app/models/ExportFormat.h"
#include "reports/Report.h"

#include <QButtonGroup>

class QCheckBox;
class QPushButton;

namespace quillmark::app {

class FormatCard;
class ReportPreview;
class TextLabel;

/// As what the inspection is to be saved: the formats, and how it will look. Accepted: the user wants it.
class ExportDialog : public ContentDialog
{
    Q_OBJECT

public:
    ExportDialog(const AppContext &context, QWidget *parent);

    ExportFormat format() const;
    /// What the user wants to be written.
    reports::Report report() const;

protected:
    void retranslate() override;

private:
    QWidget *makeFooter();
    void choose();
    void showPreview();

    const AppContext &m_context;
    reports::Report m_report;
    TextLabel *m_title;
    TextLabel *m_subtitle;
    QButtonGroup m_formats;
    QCheckBox *m_leaveOut;
    ReportPreview *m_preview;
    TextLabel *m_size;
    QPushButton *m_cancel;
    QPushButton *m_export;
};

} // namespace quillmark::app
