// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/Version.h"

#include <QByteArrayView>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <expected>
#include <optional>

namespace quillmark::update {

/// What an item says of the file to download for one system.
struct Enclosure
{
    QString system; ///< "macos", "linux"; lower case
    std::optional<Version> version;
    QString title; ///< the version that people see; empty when it does not say

    bool operator==(const Enclosure &) const = default;
};

/// A version that is published. Every text is plain and without control characters.
struct FeedItem
{
    std::optional<Version> version; ///< none: an enclosure has it
    QString title;                  ///< the version that people see; empty when it does not say
    QString channel;                ///< empty: it is for everybody
    QList<Enclosure> enclosures;    ///< empty: it is for macOS
    std::optional<Version> minimumSystem;
    std::optional<Version> maximumSystem;
    QStringList hardware;    ///< what it requires, each a word of the feed's: "arm64"; lower case
    bool isUnusable = false; ///< it names a requirement that cannot be read, so nobody is offered it
    bool isCritical = false;
    std::optional<Version> criticalBelow; ///< critical to older versions than this only; none: to all
    QUrl downloadPage;                    ///< https, or empty
    QUrl releaseNotes;                    ///< https, or empty
    QString notes;                        ///< lines of text; empty when there are none
    QDateTime published;                  ///< invalid when it does not say

    bool operator==(const FeedItem &) const = default;
};

struct Feed
{
    QList<FeedItem> items; ///< in the feed's order

    bool operator==(const Feed &) const = default;
};

/// Why what was received is no feed.
struct FeedError
{
    enum class Reason {
        NotXml,       ///< not well-formed, cut off, or not UTF-8
        DocumentType, ///< it declares a document type or entities, which feeds have no use for
        NotFeed,      ///< its root is not rss
        TooDeep,
        TooMany, ///< items
    };

    Reason reason = Reason::NotXml;
    qint64 line = 0; ///< from 1; 0: it is of the whole

    bool operator==(const FeedError &) const = default;
};

/// Reads an update feed in the form of a Sparkle appcast: RSS 2.0 with the elements of Sparkle's namespace.
/// Elements and attributes that are not known are passed over, addresses that are not https count as absent,
/// and of an address or a note that stands twice the first one counts. Nothing is looked up or expanded.
std::expected<Feed, FeedError> parseFeed(QByteArrayView bytes);

} // namespace quillmark::update
