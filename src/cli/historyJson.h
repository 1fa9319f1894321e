// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/ScanSnapshot.h"
#include "history/SnapshotChange.h"
#include "history/snapshotJson.h"

#include <QByteArray>

#include <vector>

// What `quillmark history` prints for other programs (docs/contracts.md): UTF-8, ending with a line break.

namespace quillmark::cli {

/// An array with an object for each scan, in the order given.
QByteArray scansJson(const std::vector<history::ScanDigest> &scans);

/// An array with an object for each change; an absent value is left out.
QByteArray changesJson(const QList<history::SnapshotChange> &changes);

} // namespace quillmark::cli
