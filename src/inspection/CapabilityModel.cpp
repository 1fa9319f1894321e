// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/CapabilityModel.h"

#include "inspection/Text.h"

#include <QHash>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <random>

namespace quillmark::inspection {

QString rawValue(CapabilityStatus status)
{
    switch (status) {
    case CapabilityStatus::Supported:
        return QStringLiteral("supported");
    case CapabilityStatus::Unsupported:
        return QStringLiteral("unsupported");
    case CapabilityStatus::Warning:
        return QStringLiteral("warning");
    case CapabilityStatus::Info:
        break;
    }
    return QStringLiteral("info");
}

std::optional<CapabilityStatus> statusFromRawValue(QStringView text)
{
    for (const auto status : allStatuses) {
        if (text == rawValue(status))
            return status;
    }
    return std::nullopt;
}

QString title(CapabilityStatus status)
{
    switch (status) {
    case CapabilityStatus::Supported:
        return Text::tr("Supported");
    case CapabilityStatus::Unsupported:
        return Text::tr("Not supported");
    case CapabilityStatus::Warning:
        return Text::tr("Warning");
    case CapabilityStatus::Info:
        break;
    }
    return Text::tr("Info");
}

QUuid freshId()
{
    thread_local std::mt19937_64 generator(QRandomGenerator::system()->generate64());
    const quint64 high = (generator() & ~Q_UINT64_C(0xF000)) | 0x4000;       // version 4
    const quint64 low = (generator() >> 2) | Q_UINT64_C(0x8000000000000000); // variant
    const auto byte = [low](int place) { return static_cast<uchar>(low >> 8 * place); };
    return {static_cast<uint>(high >> 32),
            static_cast<ushort>(high >> 16),
            static_cast<ushort>(high),
            byte(7),
            byte(6),
            byte(5),
            byte(4),
            byte(3),
            byte(2),
            byte(1),
            byte(0)};
}

size_t qHash(const CapabilityItem &item, size_t seed)
{
    return qHashMulti(seed, item.id, item.label, item.value, static_cast<int>(item.status),
                      item.key.value_or(QString()), item.isVolatile);
}

size_t qHash(const CapabilitySection &section, size_t seed)
{
    return qHashMulti(seed, section.id, section.title, section.symbol, section.items,
                      section.key.value_or(QString()));
}

qsizetype StatusCounts::rated() const
{
    return of(CapabilityStatus::Supported) + of(CapabilityStatus::Warning) +
           of(CapabilityStatus::Unsupported);
}

double StatusCounts::score() const
{
    return rated() == 0 ? 0
                        : static_cast<double>(of(CapabilityStatus::Supported)) / static_cast<double>(rated());
}

int StatusCounts::scorePercent() const
{
    const int percent = static_cast<int>(std::floor(score() * 100 + 0.5));
    return score() < 1 ? std::min(percent, 99) : percent;
}

StatusCounts countsOf(const QList<CapabilitySection> &sections)
{
    StatusCounts counts;
    for (const auto &section : sections) {
        for (const auto &item : section.items)
            counts.add(item.status);
    }
    return counts;
}

qsizetype count(const QList<CapabilitySection> &sections, CapabilityStatus status)
{
    return countsOf(sections).of(status);
}

qsizetype ratedCount(const QList<CapabilitySection> &sections)
{
    return countsOf(sections).rated();
}

double capabilityScore(const QList<CapabilitySection> &sections)
{
    return countsOf(sections).score();
}

int scorePercent(const QList<CapabilitySection> &sections)
{
    return countsOf(sections).scorePercent();
}

} // namespace quillmark::inspection
