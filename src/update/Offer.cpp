// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/Offer.h"

#include "inspection/DeviceProbe.h"

#include <algorithm>

namespace quillmark::update {

using namespace Qt::StringLiterals;

namespace {

/// The words in which feeds ask for a processor, and what they are called here.
QString processorNamed(const QString &requirement)
{
    if (requirement == "arm64"_L1 || requirement == "aarch64"_L1)
        return u"arm64"_s;
    if (requirement == "x86_64"_L1 || requirement == "amd64"_L1)
        return u"x86_64"_s;
    return {};
}

/// Of several processors any will do. A requirement that is not known cannot be met.
bool hasHardware(const Computer &computer, const QStringList &required)
{
    const auto isKnown = [](const QString &word) { return !processorNamed(word).isEmpty(); };
    const auto isMine = [&](const QString &word) { return processorNamed(word) == computer.processor; };
    return required.isEmpty() ||
           (std::ranges::all_of(required, isKnown) && std::ranges::any_of(required, isMine));
}

/// What the item says of the file for this system. None when it has nothing for it.
std::optional<Enclosure> enclosureFor(const FeedItem &item, const QString &system)
{
    if (item.enclosures.isEmpty())
        return system == "macos"_L1 ? std::optional(Enclosure{.system = system}) : std::nullopt;
    const auto found = std::ranges::find(item.enclosures, system, &Enclosure::system);
    return found == item.enclosures.end() ? std::nullopt : std::optional(*found);
}

bool canRun(const Computer &computer, const FeedItem &item)
{
    if (item.isUnusable || !hasHardware(computer, item.hardware))
        return false;
    const auto &mine = computer.systemVersion;
    return !mine || ((!item.minimumSystem || *mine >= *item.minimumSystem) &&
                     (!item.maximumSystem || *mine <= *item.maximumSystem));
}

} // namespace

Computer computerOf(const platform::Machine &machine)
{
    using platform::InstructionSet;
    Computer computer{.system = u"linux"_s};
    if (inspection::DeviceProbe::isMac(machine)) {
        const auto system = machine.system().operatingSystem();
        computer.system = u"macos"_s;
        computer.systemVersion =
            Version::parse(u"%1.%2.%3"_s.arg(system.major).arg(system.minor).arg(system.patch));
    }
    const auto instructions = inspection::DeviceProbe::instructionSet(machine);
    if (instructions == InstructionSet::Arm64)
        computer.processor = u"arm64"_s;
    else if (instructions == InstructionSet::X86_64)
        computer.processor = u"x86_64"_s;
    return computer;
}

std::optional<Offer> bestOffer(const Feed &feed, const Computer &computer, const Version &running)
{
    std::optional<Offer> best;
    for (const auto &item : feed.items) {
        const auto enclosure = enclosureFor(item, computer.system);
        if (!enclosure || !item.channel.isEmpty() || !canRun(computer, item))
            continue;
        const auto version = item.version ? item.version : enclosure->version;
        if (!version || *version <= (best ? best->version : running))
            continue;
        const auto &title = item.title.isEmpty() ? enclosure->title : item.title;
        best = Offer{.version = *version,
                     .title = title.isEmpty() ? version->text() : title,
                     .isCritical = item.isCritical && (!item.criticalBelow || running < *item.criticalBelow),
                     .downloadPage = item.downloadPage,
                     .releaseNotes = item.releaseNotes,
                     .notes = item.notes,
                     .published = item.published};
    }
    return best;
}

} // namespace quillmark::update
