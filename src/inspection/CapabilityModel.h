// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringView>
#include <QUuid>

#include <array>
#include <cstddef>
#include <optional>

namespace quillmark::inspection {

/// How a capability stands. The order is that of filters and counts.
enum class CapabilityStatus {
    Supported,   ///< the machine has it
    Unsupported, ///< the machine lacks it
    Warning,     ///< present, but degraded, limited or in need of attention
    Info,        ///< a plain fact, not rated
};

inline constexpr std::array allStatuses = {CapabilityStatus::Supported, CapabilityStatus::Unsupported,
                                           CapabilityStatus::Warning, CapabilityStatus::Info};

/// The status as files and the command line write it: "supported", "unsupported", "warning", "info".
QString rawValue(CapabilityStatus status);
/// None for any other text.
std::optional<CapabilityStatus> statusFromRawValue(QStringView text);
/// The status as people read it, in the interface language: "Supported", "Not supported", …
QString title(CapabilityStatus status);

/// A random UUID (RFC 4122, version 4) to tell rows apart. The system's generator, asked for each of a
/// hundred rows, would take as long as reading the machine: it only seeds this one, which is not fit for
/// secrets.
QUuid freshId();

/// One row of an inspection.
struct CapabilityItem
{
    QUuid id = freshId(); ///< tells rows of a list apart; means nothing across inspections
    QString label;        ///< in the interface language
    QString value;        ///< formatted, in the interface language
    CapabilityStatus status = CapabilityStatus::Info;
    std::optional<QString> key; ///< names the row in every language and every scan; absent: the label does
    bool isVolatile = false;    ///< the value changes without any change of the machine

    bool operator==(const CapabilityItem &) const = default;
};

/// A titled group of rows.
struct CapabilitySection
{
    QUuid id = freshId();
    QString title;
    QString symbol; ///< name of its icon
    QList<CapabilityItem> items;
    std::optional<QString> key; ///< as for a row

    bool operator==(const CapabilitySection &) const = default;
};

size_t qHash(const CapabilityItem &item, size_t seed = 0);
size_t qHash(const CapabilitySection &section, size_t seed = 0);

/// The headline: what this machine is.
struct DeviceSummary
{
    QString deviceName;      ///< "Mac" when the system gives none
    QString modelIdentifier; ///< "—" when unreadable
    QString chip;
    QString memory;  ///< installed, as a byte count
    QString storage; ///< of the start-up volume, as a byte count; "—" when unreadable
    QString osVersion;
    bool isAppleSilicon = false;
    bool hasBattery = false;

    bool operator==(const DeviceSummary &) const = default;
};

/// How many rows have each status, and what follows from that.
class StatusCounts
{
public:
    void add(CapabilityStatus status) { ++m_counts[static_cast<std::size_t>(status)]; }

    qsizetype of(CapabilityStatus status) const { return m_counts[static_cast<std::size_t>(status)]; }
    /// All but the rows of status Info.
    qsizetype rated() const;
    /// The share of rated rows that are supported, from 0 to 1; 0 when none is rated.
    double score() const;
    /// The score as a whole percentage, as it is shown everywhere: rounded, but 100 only when every rated row
    /// is supported.
    int scorePercent() const;

private:
    std::array<qsizetype, allStatuses.size()> m_counts{};
};

/// Of all sections.
StatusCounts countsOf(const QList<CapabilitySection> &sections);

// Single figures of them.
qsizetype count(const QList<CapabilitySection> &sections, CapabilityStatus status);
qsizetype ratedCount(const QList<CapabilitySection> &sections);
double capabilityScore(const QList<CapabilitySection> &sections);
int scorePercent(const QList<CapabilitySection> &sections);

} // namespace quillmark::inspection
