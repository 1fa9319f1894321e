// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

#include <QString>

namespace quillmark::app {

/// What the window is opened with.
struct Launch
{
    const platform::Machine &machine;
    QString recording;   ///< file that the machine was read from; empty: the machine at hand
    QString historyFile; ///< empty: the user's; for a recording, one that is not kept
    QString language;    ///< tag; empty: as the user has chosen
};

/// The function that the module quillmark-app exports, with C linkage, as `runAppName`: opens the window and
/// runs until the user quits; where the same user has such a window already, brings it forward instead.
/// Returns the exit status, and in `failure` why it is not 0. Where there is no desktop to open a window on,
/// the program ends with status 1 and a line on standard error. There must be no application object yet. To
/// be called on the main thread.
///
/// Program and module are built together and share Qt's libraries, so that its values cross as they are;
/// `version`, the caller's applicationVersion(), is checked before anything else is read.
using RunApp = int(const QString &version, const Launch &launch, QString &failure);

inline constexpr const char *runAppName = "quillmark_runApp";

} // namespace quillmark::app
