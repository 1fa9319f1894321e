// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/ReportExport.h"

#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/showInFolder.h"
#include "app/widgets/NoticeBar.h"
#include "reports/saveFile.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

namespace quillmark::app {

using namespace Qt::StringLiterals;

ReportExport::ReportExport(const AppContext &context, NoticeBar &notices, QWidget *window)
    : QObject(window)
    , m_context(context)
    , m_notices(notices)
    , m_window(window)
{}

void ReportExport::begin()
{
    if (m_dialog)
        return;
    m_dialog = new ExportDialog(m_context, m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, &QDialog::accepted, this,
            [this] { choosePlace(m_dialog->format(), m_dialog->report()); });
    m_dialog->open();
}

void ReportExport::choosePlace(ExportFormat format, const reports::Report &report)
{
    auto *panel = new QFileDialog(m_window, tr("Export inspection"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilter(u"%1 (*.%2)"_s.arg(title(format), extension(format)));
    panel->setDefaultSuffix(extension(format));
    panel->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    panel->selectFile(reports::suggestedFileName(report, extension(format)));
    connect(panel, &QFileDialog::fileSelected, this,
            [this, format, report](const QString &file) { save(file, format, report); });
    panel->open();
}

void ReportExport::save(const QString &file, ExportFormat format, const reports::Report &report)
{
    // Whether a file that is there may go was asked by the panel.
    const auto saved = reports::saveFile(QFile::encodeName(file).toStdString(), contents(format, report),
                                         reports::Existing::Replace);
    if (saved) {
        m_notices.show({.kind = Notice::Kind::Success,
                        .sentence = tr("Report saved."),
                        .buttons = {{showInFolderVerb(), [file] { showInFolder(file); }}}});
        return;
    }
    m_notices.show({.kind = Notice::Kind::Error,
                    .sentence = reports::title(saved.error()),
                    .detail = reasonText(saved.error()),
                    .buttons = {{tr("Choose another place…"),
                                 [this, format, report] { choosePlace(format, report); }}}});
}

} // namespace quillmark::app
