// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "update/FeedSource.h"

#include <QList>
#include <QString>

#include <expected>
#include <functional>

namespace quillmark::update {

/// The record of the last requests that this program sent, kept in a file that its owner alone can read. A
/// request is entered before it is sent, so that what is not in here never was.
class RequestLedger
{
public:
    explicit RequestLedger(const QString &file)
        : m_file(file)
    {}

    const QString &file() const { return m_file; }

    /// The oldest first, none where there is no file; or why it cannot be read. One with neither status nor
    /// failure was sent, and the program ended before it knew what came of it.
    std::expected<QList<Exchange>, QString> exchanges() const;

    /// Enters a request that is about to be sent. False: that could not be written. A file that cannot be
    /// read is put aside first, under a name with the time.
    bool begin(const Exchange &exchange);
    /// What came of the one that was begun last, in its place; the further ones, after it.
    bool complete(const Exchange &begun, const QList<Exchange> &exchanges);

private:
    bool change(const std::function<void(QList<Exchange> &)> &change);
    bool putAside() const;

    QString m_file;
};

} // namespace quillmark::update
