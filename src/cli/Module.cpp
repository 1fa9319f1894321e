// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "cli/Module.h"

#include "platform/programFile.h"

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

} // namespace

std::expected<QFunctionPointer, Failure> resolve(const QString &module, const char *symbol)
{
    const auto folders = moduleFolders();
    if (folders.isEmpty())
        return std::unexpected(Failure{
            u"the module %1 was not found: the system does not tell where the program is"_s.arg(module)});
    for (const QDir folder : folders) {
        const auto files = folder.entryList({module + u".*"_s}, QDir::Files);
        if (files.isEmpty())
            continue;
        QLibrary library(folder.filePath(files.first()));
        library.setLoadHints(QLibrary::PreventUnloadHint);
        if (const auto function = library.resolve(symbol))
            return function;
        return std::unexpected(Failure{library.errorString()});
    }
    return std::unexpected(
        Failure{u"the module %1 is neither in %2"_s.arg(module, folders.join(u" nor in "_s))});
}

} // namespace quillmark::cli
