// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/CapabilityModel.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace quillmark::reports {

/// Texts that tell whose machine it is or where it stands.
enum class PrivateText { ComputerName, Addresses, VolumeNames };

/// The word for it in files: "computerName", "addresses", "volumeNames".
QString rawValue(PrivateText text);

/// One inspection as it is written down. Every format walks this value, so that no two of them disagree.
struct Report
{
    std::optional<QDateTime> date; ///< of the inspection, any time zone; absent before the first one
    QString language;              ///< tag of the interface language that the texts are in
    inspection::DeviceSummary summary;
    QList<inspection::CapabilitySection> sections; ///< all of them, in inspection order
    /// The rows to write; empty: all. Counts and score are of all rows in any case.
    std::function<bool(const inspection::CapabilitySection &, const inspection::CapabilityItem &)> filter;
    /// What was taken out of the summary and the rows; a written report says so at its foot.
    QList<PrivateText> leftOut;
};

using RowFilter = decltype(Report::filter);

/// Lets the rows of these sections through, named by their keys; those of all sections when none is named.
RowFilter inSections(const QStringList &keys);

/// The report with nothing in it that tells whose machine it is. Its rows stay, and so do counts and score:
/// the value of a row that had such a text reads "Left out", rows of addresses no longer name their
/// interface, and the headline has the model in place of the computer's name. Names and addresses that are
/// not there are not called left out.
Report withoutPrivateTexts(Report report);

/// "Quillmark – Ada’s MacBook Pro – 2026-11-22.pdf": a name that every file system takes. `extension` is
/// without its point. The day is that of the inspection in local time, or today.
QString suggestedFileName(const Report &report, const QString &extension);

/// The version of this program, "1.0.0".
QString applicationVersion();

/// "Apple M2", "16 GB memory", "494.38 GB storage"; what is not known is left out. `shown` may change the
/// machine's own texts before they stand among others.
QStringList hardwareFacts(const inspection::DeviceSummary &summary,
                          const std::function<QString(const QString &)> &shown = {});
/// "macOS 15.3.1 Sequoia (24D70)", "Mac15,10"; likewise.
QStringList systemFacts(const inspection::DeviceSummary &summary);
/// The facts of the hardware in a line, a dot between them.
QString hardwareLine(const inspection::DeviceSummary &summary,
                     const std::function<QString(const QString &)> &shown = {});

/// "Left out of this report: computer name, addresses, and volume names."; empty when nothing was.
QString leftOutNote(const Report &report);

/// The sections of the report with the rows that the filter lets through; sections left without rows stand
/// there too.
QList<inspection::CapabilitySection> filteredSections(const Report &report);

/// What copying puts on the pasteboard: headline, then a line for each row.
QString plainText(const Report &report);

/// A table for each section. Texts are escaped so that they read the same wherever Markdown is rendered.
QString markdown(const Report &report);

/// The object "report-v1" (docs/contracts.md), UTF-8, indented, ending with a line break.
QByteArray json(const Report &report);

} // namespace quillmark::reports
