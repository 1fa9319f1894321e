// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/PdfModule.h"

#include "reports/DrawPdf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include <dlfcn.h>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

/// The folder of this very program, whatever name it was started by.
QDir programFolder()
{
    auto file = QFile::symLinkTarget(u"/proc/self/exe"_s);
    Dl_info self{};
    // Where there is no /proc, the loader names the file whole; with one it might give no more than argv[0].
    if (file.isEmpty() && dladdr(reinterpret_cast<const void *>(&pdfReport), &self) != 0)
        file = QFile::decodeName(self.dli_fname);
    return QFileInfo(QFileInfo(file).canonicalFilePath()).dir();
}

/// In a build folder or an installation, and in an application bundle.
QStringList moduleFolders()
{
    const auto program = programFolder();
    QStringList folders;
    for (const auto folder : {"../" QUILLMARK_LIBDIR "/quillmark", "../PlugIns"})
        folders += QDir::cleanPath(program.filePath(QString::fromLatin1(folder)));
    return folders;
}

std::expected<reports::DrawPdf *, Failure> loadModule()
{
    const auto folders = moduleFolders();
    for (const QDir folder : folders) {
        const auto files = folder.entryList({u"quillmark-pdf.*"_s}, QDir::Files);
        if (files.isEmpty())
            continue;
        QLibrary module(folder.filePath(files.first()));
        module.setLoadHints(QLibrary::PreventUnloadHint);
        if (const auto draw = module.resolve(reports::drawPdfName))
            return reinterpret_cast<reports::DrawPdf *>(draw);
        return std::unexpected(Failure{module.errorString()});
    }
    return std::unexpected(
        Failure{u"the module quillmark-pdf, which draws PDF documents, is neither in %1"_s.arg(
            folders.join(u" nor in "_s))});
}

} // namespace

std::expected<QByteArray, Failure> pdfReport(const reports::Report &report)
{
    const auto draw = loadModule();
    if (!draw)
        return std::unexpected(draw.error());
    QByteArray pdf;
    QString failure;
    if (!(*draw)(reports::applicationVersion(), reports::reportDocument(report), pdf, failure))
        return std::unexpected(Failure{u"no PDF document could be drawn: "_s + failure});
    return pdf;
}

} // namespace quillmark::cli
