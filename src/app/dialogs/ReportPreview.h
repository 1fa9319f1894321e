// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/models/ExportFormat.h"

#include <QImage>
#include <QString>
#include <QWidget>

namespace quillmark::app {

/// The beginning of a report on paper.
class ReportPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ReportPreview(QWidget *parent = nullptr);

    /// Made when it is next painted, since pages take a moment.
    void setReport(ExportFormat format, const reports::Report &report);
    QSize sizeHint() const override;

Q_SIGNALS:
    /// What the file will be: so many pages, or else so many bytes.
    void measured(qsizetype pages, qsizetype bytes);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void make();
    QRect paper() const;

    ExportFormat m_format = ExportFormat::Pdf;
    reports::Report m_report;
    bool m_isMade = true;
    QImage m_page;  ///< of pages
    QString m_text; ///< else
};

} // namespace quillmark::app
