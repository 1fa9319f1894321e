// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/ScanSnapshot.h"

#include <QByteArray>
#include <QByteArrayView>

#include <expected>
#include <vector>

namespace quillmark::history {

/// The snapshot as the history file holds it (docs/contracts.md): a compact JSON object, UTF-8.
QByteArray encoded(const ScanSnapshot &snapshot);

/// The identifier as files and the command line write it: in capitals, without braces.
QString idText(const QUuid &id);

/// The date as files and the command line write it: "2026-11-22T20:35:32Z".
QString dateText(const QDateTime &date);

/// A snapshot and the text that it was read from.
struct StoredSnapshot
{
    ScanSnapshot snapshot;
    QByteArrayView json; ///< within the text of the file
};

/// The snapshots of a history file, newest first; those of one moment stay in the file's order. They are all
/// there or none: any fault makes the file none of ours, and the sentence says what it is. Unknown members
/// are passed over.
std::expected<std::vector<StoredSnapshot>, QString> decodeHistory(QByteArrayView text);

} // namespace quillmark::history
