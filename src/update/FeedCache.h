// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace quillmark::update {

/// The last feed that came, with what a server needs to be told to send only a newer one.
struct CachedFeed
{
    QUrl url; ///< that was asked for
    QByteArray etag;
    QByteArray lastModified;
    QByteArray body;
};

/// None when there is none of that address, or what stands there is nothing that was written here.
std::optional<CachedFeed> readFeedCache(const QString &file, const QUrl &url);
/// One that cannot be written is no loss: the next answer is a whole one.
void writeFeedCache(const QString &file, const CachedFeed &feed);

} // namespace quillmark::update
