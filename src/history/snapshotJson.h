// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "history/ScanSnapshot.h"
#include "history/fieldTexts.h"

#include <QByteArray>
#include <QByteArrayView>

#include <expected>
#include <optional>
#include <vector>

namespace quillmark::history {

/// The snapshot as the history file holds it (docs/contracts.md): a compact JSON object, UTF-8.
QByteArray encoded(const ScanSnapshot &snapshot);

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

/// What a list shows of a scan.
struct ScanDigest
{
    QUuid id;
    QDateTime date;
    QString deviceName;
    QString modelIdentifier;
    QString chip;
    QString osVersion;
    inspection::StatusCounts counts; ///< of all rows
    std::optional<QString> language;
};

/// The same, and with the same faults, without keeping any row: in half the time.
std::expected<std::vector<ScanDigest>, QString> decodeDigests(QByteArrayView text);

} // namespace quillmark::history
