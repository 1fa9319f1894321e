// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/VideoAcceleration.h"

#include <QList>

#include <algorithm>

namespace quillmark::inspection {

using namespace Qt::StringLiterals;

bool VideoAcceleration::has(QStringView profile, QStringView entryPoint) const
{
    return entries && std::ranges::any_of(*entries, [=](const auto &entry) {
               return entry.first == profile && entry.second.startsWith(entryPoint);
           });
}

bool VideoAcceleration::hasAny(QStringView codec, QStringView entryPoint) const
{
    return entries && std::ranges::any_of(*entries, [=](const auto &entry) {
               return entry.first.startsWith(codec) && entry.second.startsWith(entryPoint);
           });
}

VideoAcceleration videoAcceleration(const platform::CommandAnswer &vainfo)
{
    VideoAcceleration found;
    VideoAcceleration::Entries entries;
    bool hasList = false;
    const auto output = QString::fromStdString(vainfo.output);
    for (const auto line : QStringView(output).split(u'\n')) {
        constexpr auto driverLabel = u"Driver version:";
        if (const auto place = line.indexOf(driverLabel); place >= 0) {
            const auto text = line.sliced(place + QStringView(driverLabel).size()).trimmed();
            if (!found.driver && !text.isEmpty())
                found.driver = text.toString();
        } else if (line.contains(u"Supported profile and entrypoints")) {
            hasList = true;
        } else if (const auto colon = line.indexOf(u':'); hasList && colon >= 0) {
            entries.emplace_back(line.first(colon).trimmed().toString(),
                                 line.sliced(colon + 1).trimmed().toString());
        }
    }
    // A driver that gives up half-way has not said what it lacks.
    if (hasList && vainfo.exitStatus == 0)
        found.entries = std::move(entries);
    return found;
}

} // namespace quillmark::inspection
