// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/Settings.h"

#include <QByteArray>
#include <QString>

/// What the window keeps from one start to the next.
namespace quillmark::app::keys {

using settings::Key;
using namespace Qt::StringLiterals;

inline const Key<QByteArray> windowGeometry{"window/geometry"_L1};
inline const Key<bool> sidebarHidden{"window/sidebarHidden"_L1};
inline const Key<QString> lastPlace{"window/place"_L1};     ///< see models/Place.h
inline const Key<QString> statusFilter{"window/status"_L1}; ///< raw value; empty: all
inline const QString opensAtLast = u"last"_s;
inline const Key<QString> opensAt{"window/opensAt"_L1, opensAtLast}; ///< or "overview"
inline const Key<bool> keepsRunning{
    "window/keepsRunning"_L1}; ///< when it is closed, as long as there is a tray
inline const Key<bool> showsMenuBarMonitor{"menuBar/shown"_L1};
inline const Key<QString> menuBarFigure{"menuBar/figure"_L1, u"processor"_s}; ///< or "memory", "none"
inline const Key<QString> exportFormat{"export/format"_L1, u"pdf"_s};
inline const Key<QString> closedUpdate{"updates/closedNotice"_L1}; ///< version whose notice was closed
inline const Key<bool> hasStarted{"hasStarted"_L1};                ///< once the first start is over

} // namespace quillmark::app::keys
