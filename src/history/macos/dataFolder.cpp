// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/dataFolder.h"

#include <QStandardPaths>

namespace quillmark::history {

/// Application Support.
QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

} // namespace quillmark::history
