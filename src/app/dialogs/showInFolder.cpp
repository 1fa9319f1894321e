// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/showInFolder.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Folder)
};

} // namespace

QString showInFolderVerb()
{
    return QGuiApplication::platformName() == "cocoa"_L1 ? Text::tr("Show in Finder")
                                                         : Text::tr("Show in file manager");
}

void showInFolder(const QString &file)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absolutePath()));
}

} // namespace quillmark::app
