// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <expected>
#include <functional>

namespace quillmark::update {

/// What is asked for, and all that is told in doing so.
struct FeedQuestion
{
    QUrl url;                ///< https
    QByteArray userAgent;    ///< "Quillmark/1.0.0"
    QByteArray etag;         ///< of the answer that is there already; empty: none is, or it had none
    QByteArray lastModified; ///< likewise
};

struct FeedAnswer
{
    bool isUnchanged = false; ///< since the answer that is there already; then there is no body
    QByteArray body;
    QByteArray etag;
    QByteArray lastModified;
};

/// Why no feed came.
struct FetchError
{
    enum class Reason {
        NoConnection,
        NotTrusted, ///< the server could not prove that it is the one that was asked
        TimedOut,
        TooLong,
        LedElsewhere, ///< to another server, off https, or round and round
        Refused,      ///< the answer has another status than that of a feed
    };

    Reason reason = Reason::NoConnection;
    QString detail; ///< what Qt says, the address it led to, or the status

    bool operator==(const FetchError &) const = default;
};

/// The word for it in the ledger and in JSON: "timedOut".
QString nameOf(FetchError::Reason reason);

/// A request that was sent, and what came of it. Where a connection ends before there is an answer, Qt may
/// have sent it a few times.
struct Exchange
{
    QDateTime date; ///< UTC, when it was sent
    QUrl url;
    int status = 0;   ///< of the answer; 0: none came
    qint64 bytes = 0; ///< of its body, as far as it was read
    QString failure;  ///< what ended it early, by its word; empty: nothing did

    bool operator==(const Exchange &) const = default;
};

/// Every request that a question took (the further ones where it was led), and what it came to.
struct FetchOutcome
{
    QList<Exchange> exchanges;
    std::expected<FeedAnswer, FetchError> answer;
};

struct FetchLimits
{
    std::chrono::milliseconds time{10'000}; ///< for all of it
    qint64 bytes = 1 << 20;
    int redirects = 5;
};

/// Gets feeds from where they are published.
class FeedSource
{
public:
    using Done = std::function<void(const FetchOutcome &)>;

    /// What is still under way is given up, and nobody is told.
    virtual ~FeedSource() = default;

    /// Returns at once and calls `done` later, from the event loop of the calling thread; until then it is
    /// not called again.
    virtual void fetch(const FeedQuestion &question, const Done &done) = 0;
    /// What is under way is given up, and nobody is told.
    virtual void cancel() = 0;
};

} // namespace quillmark::update
