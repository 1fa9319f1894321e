// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"
#include "update/Feed.h"
#include "update/Version.h"

#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

namespace quillmark::update {

/// What decides whether a computer can run a version.
struct Computer
{
    QString system; ///< in the words of feeds: "macos", "linux"
    std::optional<Version>
        systemVersion; ///< of macOS; none elsewhere, where versions of systems do not compare
    QString processor; ///< "arm64", "x86_64"; empty: another

    bool operator==(const Computer &) const = default;
};

Computer computerOf(const platform::Machine &machine);

/// A newer version, as it is shown. Every text is plain.
struct Offer
{
    Version version;
    QString title; ///< the version that people see: "1.2"; never empty
    bool isCritical = false;
    QUrl downloadPage;   ///< https, or empty: the feed names none
    QUrl releaseNotes;   ///< https, or empty
    QString notes;       ///< lines of text; empty when there are none
    QDateTime published; ///< UTC; invalid when the feed does not say

    bool operator==(const Offer &) const = default;
};

/// The newest version that the feed has for everybody, that this computer can run, and that is newer than
/// `running`; of two equal ones the first. None when there is none.
std::optional<Offer> bestOffer(const Feed &feed, const Computer &computer, const Version &running);

} // namespace quillmark::update
