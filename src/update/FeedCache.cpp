// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "update/FeedCache.h"

#include "update/privateFile.h"

#include <QCborMap>
#include <QCborValue>

namespace quillmark::update {

using namespace Qt::StringLiterals;

std::optional<CachedFeed> readFeedCache(const QString &file, const QUrl &url)
{
    const auto kept = QCborValue::fromCbor(readPrivateFile(file).value_or(QByteArray())).toMap();
    const CachedFeed feed{.url = QUrl(kept["url"_L1].toString()),
                          .etag = kept["etag"_L1].toByteArray(),
                          .lastModified = kept["lastModified"_L1].toByteArray(),
                          .body = kept["body"_L1].toByteArray()};
    return feed.url == url && !feed.body.isEmpty() ? std::optional(feed) : std::nullopt;
}

void writeFeedCache(const QString &file, const CachedFeed &feed)
{
    const QCborMap map = {{"url"_L1, feed.url.toString(QUrl::FullyEncoded)},
                          {"etag"_L1, feed.etag},
                          {"lastModified"_L1, feed.lastModified},
                          {"body"_L1, feed.body}};
    writePrivateFile(file, map.toCborValue().toCbor());
}

} // namespace quillmark::update
