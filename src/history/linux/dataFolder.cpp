// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/dataFolder.h"

#include <QDir>
#include <QStandardPaths>

namespace quillmark::history {

/// As XDG has it, which ignores a relative path. The folder is everybody's, so
/// the program has one of its own in it.
QString dataFolder()
{
    auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (QDir::isRelativePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.local/share");
    return folder + QStringLiteral("/Quillmark");
}

} // namespace quillmark::history
