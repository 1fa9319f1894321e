// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

namespace quillmark::history {

/// One inspection as it is kept: what the machine was, and every row as it was shown. Never changed once it
/// is made.
struct ScanSnapshot
{
    struct Item
    {
        QString label; ///< in the language of the scan
        QString value; ///< in the language of the scan
        inspection::CapabilityStatus status = inspection::CapabilityStatus::Info;
        std::optional<QString> key; ///< names the row in every language; absent: the label does
        bool isVolatile = false;    ///< the value changes without any change of the machine

        bool operator==(const Item &) const = default;
    };

    struct Section
    {
        QString title;
        QString symbol; ///< name of its icon
        QList<Item> items;
        std::optional<QString> key; ///< as for a row

        bool operator==(const Section &) const = default;
    };

    QUuid id;
    QDateTime date; ///< UTC, to the second, as the file holds it
    QString deviceName;
    QString modelIdentifier; ///< tells whether two scans are of the same kind of machine
    QString chip;
    QString osVersion;
    QList<Section> sections;         ///< in inspection order
    std::optional<QString> language; ///< tag of the interface language; absent in older files

    bool operator==(const ScanSnapshot &) const = default;
};

/// The inspection as a snapshot of this moment with an identity of its own.
ScanSnapshot takeSnapshot(const inspection::DeviceSummary &summary,
                          const QList<inspection::CapabilitySection> &sections, const QString &language);

inspection::StatusCounts countsOf(const ScanSnapshot &snapshot);

/// The snapshot's rows as those of an inspection, to report them.
QList<inspection::CapabilitySection> inspectedSections(const ScanSnapshot &snapshot);

} // namespace quillmark::history

Q_DECLARE_TYPEINFO(quillmark::history::ScanSnapshot::Item, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(quillmark::history::ScanSnapshot::Section, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(quillmark::history::ScanSnapshot, Q_RELOCATABLE_TYPE);
