// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/SnapshotChange.h"

#include <QString>
#include <QStringList>

// Words about saved scans in the interface language, for a window and a terminal alike.

namespace quillmark::history {

/// "3 changed", "1 added": what there is of each; empty when nothing differs.
QStringList countTexts(const ChangeCounts &counts);

/// "Changed", "Added", "Removed"
QString title(ChangeKind kind);

QString olderText();
QString newerText();
/// Stands for what the oldest scan changed.
QString firstScan();
QString noDifferences();
/// Why there may be none.
QString noDifferencesNote();
/// Why most differences are missing.
QString otherLanguageNote();
QString noScans();

/// "85%", or a dash where nothing is rated.
QString scoreText(const ScanSnapshot &scan);

/// The value, with its status where that is asked for and the value does not say it already.
QString valueText(const ScanSnapshot::Item &item, bool withStatus);

} // namespace quillmark::history
