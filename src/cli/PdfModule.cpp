// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/PdfModule.h"

#include "platform/programFile.h"
#include "reports/DrawPdf.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QStringList>

namespace quillmark::cli {

using namespace Qt::StringLiterals;

namespace {

/// Beside the program in a build folder or an installation, and in an application bundle. None when it is not
/// known where the program is: a folder that the user happens to be in is no place to load code from.
QStringList moduleFolders()
{
    const auto program = platform::programFile();
    if (program.empty())
        return {};
    const QDir beside(QFile::decodeName(program.parent_path().c_str()));
    QStringList folders;
    for (const auto folder : {"../" QUILLMARK_LIBDIR "/quillmark", "../PlugIns"})
        folders += QDir::cleanPath(beside.filePath(QString::fromLatin1(folder)));
    return folders;
}

std::expected<reports::DrawPdf *, Failure> loadModule()
{
    const auto folders = moduleFolders();
    if (folders.isEmpty())
        return std::unexpected(Failure{u"the module quillmark-pdf, which draws PDF documents, was not found: "
                                       "the system does not tell where the program is"_s});
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
