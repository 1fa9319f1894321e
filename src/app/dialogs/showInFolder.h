// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace quillmark::app {

/// What the system's file browser is called on a button: "Show in Finder".
QString showInFolderVerb();
/// Opens the folder of the file in it.
void showInFolder(const QString &file);

} // namespace quillmark::app
